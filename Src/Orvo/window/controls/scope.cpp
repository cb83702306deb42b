#include "Orvo/window/controls/scope.h"

#include <algorithm>
#include <cstring>

#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>

#include "Orvo/window/drawing/palette.h"
#include "Orvo/window/spoken/hints.h"

namespace Orvo::Window {

using Runtime::Drawn;

Scope::Scope(Runtime::Store& store, WidgetId id, QWidget* parent)
    : QWidget(parent), Control(*this, store, id) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Scope::layOut(const Scale& scale) {
    Control::layOut(scale);
    picture_ = grid_ = {};
}

void Scope::refresh() {
    refreshPresence();
    isPictureOld_ = true;
    update();
}

// To measure each trace takes longer than to draw it.
bool Scope::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) tellValueTo(*this, store(), id());
    return QWidget::event(event);
}

void Scope::paintEvent(QPaintEvent*) {
    if (isPictureOld_ || picture_.size() != sizeInPixels()) draw();
    QPainter(this).drawImage(QPoint(), picture_);
}

QSize Scope::sizeInPixels() const { return size() * devicePixelRatioF(); }

void Scope::draw() {
    const std::span<const Drawn> drawing = stored<Runtime::StoredPicture>().drawing;
    const auto trace = std::ranges::find_if(
        drawing, [](const Drawn& drawn) { return std::holds_alternative<Widgets::Trace>(drawn); });
    const std::span grid(drawing.begin(), trace);
    const bool isKept = grid_.size() == sizeInPixels() && std::ranges::equal(grid, drawnOnGrid_);
    if (!isKept) drawGrid(grid);
    startFromGrid();
    draw(picture_, {trace, drawing.end()});
    isPictureOld_ = false;
}

// Into the pixels that are there: to give them back each time may be to ask the system for them.
void Scope::startFromGrid() {
    if (picture_.size() != grid_.size()) {
        picture_ = grid_.copy();
        return;
    }
    std::memcpy(picture_.bits(), grid_.constBits(), std::size_t(grid_.sizeInBytes()));
}

void Scope::drawGrid(std::span<const Drawn> drawing) {
    grid_ = QImage(sizeInPixels(), QImage::Format_RGB32);
    grid_.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(&grid_);
    painter.fillRect(rect(), Palette::kScopeFrame);
    painter.fillRect(rect().adjusted(0, 0, -qRound(zoom()), -qRound(zoom())), Palette::kScopeShade);
    painter.end();
    surfaceOf(grid_).fill(toQt(looks().back));
    draw(grid_, drawing);
    drawnOnGrid_.assign(drawing.begin(), drawing.end());
}

// The same pixels, without the frame around them.
QImage Scope::surfaceOf(QImage& picture) const {
    const int border = qRound(qRound(Runtime::kPictureBorder * zoom()) * devicePixelRatioF());
    const QRect inside = picture.rect().adjusted(border, border, -border, -border);
    const qsizetype start = border * picture.bytesPerLine() + border * qsizetype(sizeof(QRgb));
    return {picture.bits() + start, inside.width(), inside.height(), picture.bytesPerLine(),
            picture.format()};
}

void Scope::draw(QImage& picture, std::span<const Drawn> drawing) const {
    if (drawing.empty()) return;
    const auto& its = store().get<Runtime::StoredPicture>(id());
    QImage surface = surfaceOf(picture);
    const Canvas canvas{surface, surface.width() / double(its.width()),
                        surface.height() / double(its.height())};
    for (const Drawn& drawn : drawing) {
        std::visit([&](const auto& figure) { draw(canvas, figure); }, drawn);
    }
}

// A unit of the surface is a pixel, so a line runs along the middle of its row.
void Scope::draw(const Canvas& canvas, const Runtime::LineSegment& line) const {
    const bool isStraight = line.from.x == line.to.x || line.from.y == line.to.y;
    const auto middleOf = [&](Widgets::Point point) {
        return QPointF((point.x + 0.5) * canvas.across, (point.y + 0.5) * canvas.down);
    };
    QPainter painter(&canvas.picture);
    painter.setRenderHint(QPainter::Antialiasing, !isStraight);
    painter.setPen(QPen(toQt(line.colour), canvas.thickness()));
    painter.drawLine(middleOf(line.from), middleOf(line.to));
}

void Scope::draw(const Canvas& canvas, const Runtime::DrawnText& text) const {
    Layout::Font font = looks().font;
    if (text.points > 0) font.points = double(text.points);
    QPainter painter(&canvas.picture);
    painter.setFont(toQt(font, canvas.down));
    painter.setPen(toQt(text.colour));
    const double baseline = text.at.y * canvas.down + QFontMetricsF(painter.font()).ascent();
    painter.drawText(QPointF(text.at.x * canvas.across, baseline), toQt(text.text));
}

void Scope::draw(const Canvas& canvas, const Widgets::Trace& trace) const {
    drawTrace(canvas, trace);
}

}  // namespace Orvo::Window
