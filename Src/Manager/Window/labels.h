#pragma once

#include <QLabel>

namespace Orvo::Manager {

/// A label whose text is worth interrupting whoever has the screen read out.
class AlertLabel final : public QLabel {
public:
    AlertLabel();

    /// Has the text read out.
    void alert();
};

/// A label of one line that makes do with less room than its text needs: the text ends with "…"
/// then, and all of it is in the tooltip.
class ElidedLabel final : public QLabel {
public:
    void setFullText(const QString& text);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace Orvo::Manager
