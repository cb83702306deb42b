#pragma once

#include <QLabel>

namespace Orvo::Manager {

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
