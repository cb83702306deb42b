#pragma once

#include <QLabel>

namespace Orvo::Manager {

/// A fog over all that its parent shows, in which nothing looks lit any more, with a banner that
/// says why. Input goes through.
class Veil final : public QWidget {
public:
    /// As large as the parent is from then on, and in front of all else that is in it.
    explicit Veil(QWidget* parent);

    /// Empty: there is nothing to veil.
    void showText(const QString& text);
    /// To be called when there is another room for it.
    void fill(const QRect& room);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void placeBanner();

    QLabel* const banner_;
};

}  // namespace Orvo::Manager
