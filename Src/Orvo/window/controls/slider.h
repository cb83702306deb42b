#pragma once

#include <optional>

#include <QPointer>

#include "Orvo/window/controls/control.h"
#include "Orvo/window/controls/value_bubble.h"
#include "Orvo/window/drawing/slider_track.h"

namespace Orvo::Window {

/// A vertical fader. While it is held, a bubble says what it stands at. Dragging moves the cap, a
/// click beside it steps towards the pointer by a tenth of the range: a stray click must not send
/// the volume to its end.
class Slider final : public QWidget, public Control {
public:
    Slider(Runtime::Store& store, WidgetId id, QWidget* parent);
    void refresh() override;

    /// As a person does.
    void moveTo(int position) { perform(Deed::move(id(), position)); }
    [[nodiscard]] int maximum() const { return track().maximum; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] SliderTrack track() const;
    [[nodiscard]] QRectF cap() const;
    [[nodiscard]] int position() const { return stored<Runtime::StoredSlider>().shown(); }
    void moveUp(int steps);
    void letGo();
    void showValue();
    [[nodiscard]] double middle() const;
    void drawScale(QPainter& painter) const;
    void drawNumber(QPainter& painter, double y, int number) const;
    void drawGroove(QPainter& painter) const;
    void drawCap(QPainter& painter) const;

    bool isPressed_ = false;
    QPointer<ValueBubble> bubble_;
    std::optional<double> grip_;  // while dragged: the pointer's distance from the cap's middle
    int wheel_ = 0;               // eighths of a degree that are no whole step yet
};

}  // namespace Orvo::Window
