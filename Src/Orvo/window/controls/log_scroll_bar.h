#pragma once

#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>

#include "Orvo/window/drawing/palette.h"

namespace Orvo::Window {

/// A slim, dark scroll bar. Where its parts are is still the style's to say.
class LogScrollBar final : public QScrollBar {
public:
    using QScrollBar::QScrollBar;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(rect(), Palette::kScrollBar);
        if (minimum() == maximum()) return;
        QStyleOptionSlider option;
        initStyleOption(&option);
        const QRectF handle = style()->subControlRect(QStyle::CC_ScrollBar, &option,
                                                      QStyle::SC_ScrollBarSlider, this);
        painter.setPen(Qt::NoPen);
        painter.setBrush(isSliderDown() ? Palette::kHeldScrollHandle : Palette::kScrollHandle);
        painter.drawRoundedRect(handle.adjusted(2, 1, -2, -1), 3, 3);
    }
};

}  // namespace Orvo::Window
