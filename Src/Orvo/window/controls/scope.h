#pragma once

#include <span>
#include <vector>

#include <QImage>

#include "Orvo/window/controls/control.h"
#include "Orvo/window/controls/trace_drawing.h"

namespace Orvo::Window {

/// A scope's surface. What has been drawn on it is kept as a picture in the screen's own pixels,
/// made anew when the store's drawing or the zoom changes and not when the window is only
/// repainted. A grid is kept for the traces over it.
class Scope final : public QWidget, public Control {
public:
    Scope(Runtime::Store& store, WidgetId id, QWidget* parent);
    void layOut(const Scale& scale) override;
    void refresh() override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QSize sizeInPixels() const;
    [[nodiscard]] QImage surfaceOf(QImage& picture) const;
    void draw();
    void startFromGrid();
    void drawGrid(std::span<const Runtime::Drawn> drawing);
    void draw(QImage& picture, std::span<const Runtime::Drawn> drawing) const;
    void draw(const Canvas& canvas, const Runtime::LineSegment& line) const;
    void draw(const Canvas& canvas, const Runtime::DrawnText& text) const;
    void draw(const Canvas& canvas, const Widgets::Trace& trace) const;

    QImage picture_;
    bool isPictureOld_ = true;
    QImage grid_;  // what the picture shows of the drawing before the first trace
    std::vector<Runtime::Drawn> drawnOnGrid_;
};

}  // namespace Orvo::Window
