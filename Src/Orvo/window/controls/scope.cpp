#include "Orvo/window/controls/scope.h"

#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>

#include "Orvo/window/controls/trace_lines.h"
#include "Orvo/window/drawing/palette.h"

namespace Orvo::Window {

Scope::Scope(Runtime::Store& store, WidgetId id, QWidget* parent)
    : QWidget(parent), Control(*this, store, id) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Scope::layOut(const Scale& scale) {
    Control::layOut(scale);
    picture_ = {};
}

void Scope::refresh() {
    Control::refresh();
    picture_ = {};
    update();
}

QRect Scope::surface() const {
    const int border = qRound(Runtime::kPictureBorder * zoom());
    return rect().adjusted(border, border, -border, -border);
}

void Scope::paintEvent(QPaintEvent*) {
    if (picture_.isNull() || picture_.devicePixelRatio() != devicePixelRatioF()) draw();
    QPainter painter(this);
    painter.fillRect(rect(), Palette::kScopeFrame);
    painter.fillRect(rect().adjusted(0, 0, -qRound(zoom()), -qRound(zoom())), Palette::kScopeShade);
    painter.drawPixmap(surface().topLeft(), picture_);
}

void Scope::draw() {
    const double ratio = devicePixelRatioF();
    const auto& picture = store().get<Runtime::StoredPicture>(id());
    picture_ = QPixmap(surface().size() * ratio);
    across_ = picture_.width() / double(picture.width());
    down_ = picture_.height() / double(picture.height());
    picture_.fill(toQt(looks().back));
    QPainter painter(&picture_);
    for (const Runtime::Drawn& drawn : picture.state().drawing) {
        std::visit([&](const auto& figure) { draw(painter, figure); }, drawn);
    }
    // Only now: until here one unit of the painter is one device pixel.
    painter.end();
    picture_.setDevicePixelRatio(ratio);
}

// A unit of the surface is a pixel, so a line runs along the middle of its row.
void Scope::draw(QPainter& painter, const Runtime::LineSegment& line) const {
    const bool isStraight = line.from.x == line.to.x || line.from.y == line.to.y;
    painter.setRenderHint(QPainter::Antialiasing, !isStraight);
    painter.setPen(QPen(toQt(line.colour), qMax(1, qRound(down_))));
    painter.drawLine(QPointF((line.from.x + 0.5) * across_, (line.from.y + 0.5) * down_),
                     QPointF((line.to.x + 0.5) * across_, (line.to.y + 0.5) * down_));
}

void Scope::draw(QPainter& painter, const Runtime::DrawnText& text) const {
    Layout::Font font = looks().font;
    if (text.points > 0) font.points = double(text.points);
    painter.setFont(toQt(font, down_));
    painter.setPen(toQt(text.colour));
    const double baseline = text.at.y * down_ + QFontMetricsF(painter.font()).ascent();
    painter.drawText(QPointF(text.at.x * across_, baseline), toQt(text.text));
}

void Scope::draw(QPainter& painter, const Runtime::DrawnPolyline& polyline) const {
    painter.setPen(toQt(polyline.colour));
    drawLines(painter, traceLines(polyline.points, across_, down_), qMax(1, qRound(down_)));
}

}  // namespace Orvo::Window
