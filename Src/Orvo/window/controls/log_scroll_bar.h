#pragma once

#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>

namespace Orvo::Window {

/// A slim, dark scroll bar. Where its parts are is still the style's to say.
class LogScrollBar final : public QScrollBar {
public:
    using QScrollBar::QScrollBar;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(rect(), QColor(28, 32, 38));
        if (minimum() == maximum()) return;
        QStyleOptionSlider option;
        initStyleOption(&option);
        const QRectF handle = style()->subControlRect(QStyle::CC_ScrollBar, &option,
                                                      QStyle::SC_ScrollBarSlider, this);
        painter.setPen(Qt::NoPen);
        painter.setBrush(isSliderDown() ? QColor(130, 140, 152) : QColor(92, 100, 112));
        painter.drawRoundedRect(handle.adjusted(2, 1, -2, -1), 3, 3);
    }
};

}  // namespace Orvo::Window
