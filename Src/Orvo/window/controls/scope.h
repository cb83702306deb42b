#pragma once

#include <QPixmap>

#include "Orvo/window/controls/control.h"

namespace Orvo::Window {

/// A scope's surface. What has been drawn on it is kept as a picture in the screen's own pixels,
/// made anew when the store's drawing or the zoom changes and not when the window is only
/// repainted.
class Scope final : public QWidget, public Control {
public:
    Scope(Runtime::Store& store, WidgetId id, QWidget* parent);
    void layOut(const Scale& scale) override;
    void refresh() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QRect surface() const;
    void draw();
    void draw(QPainter& painter, const Runtime::LineSegment& line) const;
    void draw(QPainter& painter, const Runtime::DrawnText& text) const;
    void draw(QPainter& painter, const Runtime::DrawnPolyline& polyline) const;

    QPixmap picture_;
    double across_ = 1;  // device pixels for one unit of the surface
    double down_ = 1;
};

}  // namespace Orvo::Window
