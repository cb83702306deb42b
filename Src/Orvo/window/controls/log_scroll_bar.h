#pragma once

#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>

#include "Orvo/window/drawing/palette.h"

namespace Orvo::Window {

/// A slim, dark scroll bar. Where its parts are is still the style's to say. In a long log its
/// handle hardly ever moves, and only then is it painted.
class LogScrollBar final : public QScrollBar {
public:
    using QScrollBar::QScrollBar;

    /// The style's is one for all zooms; the toolkit makes as much room as this says.
    [[nodiscard]] QSize sizeHint() const override {
        return {minimumWidth(), QScrollBar::sizeHint().height()};
    }

    /// To be called after its range has changed, when its value is final too.
    void settle() {
        if (handle() != shown_) update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(rect(), Palette::kScrollBar);
        shown_ = handle();
        if (shown_.isNull()) return;
        painter.setPen(Qt::NoPen);
        painter.setBrush(isSliderDown() ? Palette::kHeldScrollHandle : Palette::kScrollHandle);
        painter.drawRoundedRect(QRectF(shown_).adjusted(2, 1, -2, -1), 3, 3);
    }

    void sliderChange(SliderChange change) override {
        if (change != SliderRangeChange) settle();
    }

private:
    [[nodiscard]] QRect handle() const {
        if (minimum() == maximum()) return {};
        QStyleOptionSlider option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider,
                                       this);
    }

    QRect shown_;
};

}  // namespace Orvo::Window
