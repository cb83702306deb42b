#include "Artwork/Maker/metafile_engine.h"

#include <cmath>

#include <QLinearGradient>

namespace Orvo::Artwork {

namespace {

enum Record : std::uint32_t {
    setWindowExtent = 9,
    setViewportExtent = 11,
    endOfFile = 14,
    setMapMode = 17,
    setPolygonFillMode = 19,
    moveTo = 27,
    saveState = 33,
    restoreState = 34,
    selectObject = 37,
    createBrush = 39,
    deleteObject = 40,
    lineTo = 54,
    beginPath = 59,
    endPath = 60,
    closeFigure = 61,
    fillPath = 62,
    strokePath = 64,
    selectClipPath = 67,
    curveTo = 88,
    createPen = 95,
    fillGradient = 118,
};

constexpr std::uint32_t kPenHandle = 1;
constexpr std::uint32_t kBrushHandle = 2;
constexpr std::uint32_t kNoBrush = 0x80000005;  // of those that every device has
constexpr std::uint32_t kNoPen = 0x80000008;
constexpr int kUnits = 64;  // of the file, to a pixel

int units(double pixels) { return int(std::lround(pixels * kUnits)); }

std::uint32_t colourOf(const QColor& colour) {
    return std::uint32_t(colour.red() | colour.green() << 8 | colour.blue() << 16);
}

void addBounds(Bytes& content, const QRectF& bounds) {
    content.add(int(std::floor(bounds.left())), int(std::floor(bounds.top())),
                int(std::ceil(bounds.right())), int(std::ceil(bounds.bottom())));
}

void addCorner(Bytes& content, double x, double y, const QColor& colour) {
    content.add(units(x), units(y));
    for (const int share : {colour.red(), colour.green(), colour.blue(), 0})
        content.add(std::uint16_t(share << 8));
}

// The stops, and the ends of what they have to cover, as far as these lie beyond.
QGradientStops stopsAcross(const QLinearGradient& light, const QRectF& bounds) {
    QGradientStops stops = light.stops();
    const double top = light.start().y();
    const double height = light.finalStop().y() - top;
    for (auto& [at, colour] : stops) at = top + at * height;
    if (bounds.top() < stops.first().first) stops.prepend({bounds.top(), stops.first().second});
    if (bounds.bottom() > stops.last().first) stops.append({bounds.bottom(), stops.last().second});
    return stops;
}

std::uint32_t penStyleOf(const QPen& pen) {
    constexpr std::uint32_t kGeometric = 0x10000;
    constexpr std::uint32_t kFlatCap = 0x200;
    constexpr std::uint32_t kSquareCap = 0x100;
    const bool isRound = pen.capStyle() == Qt::RoundCap;
    const bool isFlat = pen.capStyle() == Qt::FlatCap;
    return kGeometric | (isRound ? 0U : isFlat ? kFlatCap : kSquareCap);
}

}  // namespace

MetafileEngine::MetafileEngine(QSize size) : QPaintEngine(AllFeatures), size_(size) {}

void MetafileEngine::record(std::uint32_t type, const Bytes& content) {
    records_.add(type, std::uint32_t(8 + content.all().size())).add(content.all());
    ++count_;
}

bool MetafileEngine::begin(QPaintDevice*) {
    constexpr std::uint32_t kAnyScale = 8;
    constexpr std::uint32_t kWinding = 2;
    record(setMapMode, Bytes().add(kAnyScale));
    record(setWindowExtent, Bytes().add(size_.width() * kUnits, size_.height() * kUnits));
    record(setViewportExtent, Bytes().add(size_.width(), size_.height()));
    record(setPolygonFillMode, Bytes().add(kWinding));
    return true;
}

bool MetafileEngine::end() {
    constexpr std::uint32_t kWholeSize = 20;
    record(endOfFile, Bytes().add(0U, 0U, kWholeSize));
    return true;
}

void MetafileEngine::updateState(const QPaintEngineState& changed) {
    if ((changed.state() & DirtyPen) != 0) pen_ = changed.pen();
    if ((changed.state() & DirtyBrush) != 0) brush_ = changed.brush();
    if ((changed.state() & DirtyTransform) != 0) transform_ = changed.transform();
}

void MetafileEngine::drawPath(const QPainterPath& path) {
    const QPainterPath outline = transform_.map(path);
    if (const QGradient* light = brush_.gradient()) {
        QLinearGradient mapped = *static_cast<const QLinearGradient*>(light);
        mapped.setStart(transform_.map(mapped.start()));
        mapped.setFinalStop(transform_.map(mapped.finalStop()));
        fillGraduated(outline, mapped);
    } else if (brush_.style() != Qt::NoBrush) {
        fill(outline);
    }
    if (pen_.style() != Qt::NoPen) stroke(outline);
}

void MetafileEngine::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) {
    QPainterPath path(points[0]);
    for (int i = 1; i < count; ++i) path.lineTo(points[i]);
    if (mode != PolylineMode) path.closeSubpath();
    drawPath(path);
}

void MetafileEngine::trace(const QPainterPath& outline) {
    record(beginPath);
    QPointF start;
    for (int i = 0; i < outline.elementCount(); ++i) {
        const auto element = outline.elementAt(i);
        if (element.isCurveTo()) {
            Bytes curve;
            addBounds(curve, outline.boundingRect());
            curve.add(3U);
            for (int point = i; point < i + 3; ++point) {
                const auto at = outline.elementAt(point);
                curve.add(std::int16_t(units(at.x)), std::int16_t(units(at.y)));
            }
            record(curveTo, curve);
            i += 2;
        } else {
            record(element.isMoveTo() ? moveTo : lineTo,
                   Bytes().add(units(element.x), units(element.y)));
        }
        if (element.isMoveTo()) start = element;
        const bool isEnd = i + 1 == outline.elementCount() || outline.elementAt(i + 1).isMoveTo();
        if (isEnd && QPointF(outline.elementAt(i)) == start) record(closeFigure);
    }
    record(endPath);
}

// The pen or brush has just been created; `stock` is nothing in the place of the other.
void MetafileEngine::withObject(std::uint32_t handle, std::uint32_t stock,
                                const QPainterPath& outline, std::uint32_t operation) {
    record(selectObject, Bytes().add(handle));
    record(selectObject, Bytes().add(stock));
    trace(outline);
    Bytes bounds;
    addBounds(bounds, outline.boundingRect());
    record(operation, bounds);
    record(selectObject, Bytes().add(handle == kPenHandle ? kNoPen : kNoBrush));
    record(deleteObject, Bytes().add(handle));
}

void MetafileEngine::stroke(const QPainterPath& outline) {
    constexpr std::uint32_t kNoPattern = 52;  // behind the record, where there is nothing
    const double scale = std::sqrt(std::abs(transform_.determinant()));
    Bytes pen;
    pen.add(kPenHandle, kNoPattern, 0U, kNoPattern, 0U);
    pen.add(penStyleOf(pen_), std::uint32_t(units(pen_.widthF() * scale)), 0U);
    pen.add(colourOf(pen_.color()), 0U, 0U);
    record(createPen, pen);
    withObject(kPenHandle, kNoBrush, outline, strokePath);
}

void MetafileEngine::fill(const QPainterPath& outline) {
    record(createBrush, Bytes().add(kBrushHandle, 0U, colourOf(brush_.color()), 0U));
    withObject(kBrushHandle, kNoPen, outline, fillPath);
}

// One band from each stop to the next, seen through the outline.
void MetafileEngine::fillGraduated(const QPainterPath& outline, const QLinearGradient& light) {
    constexpr std::uint32_t kReplace = 5;
    constexpr std::uint32_t kVertical = 1;
    const QRectF bounds = outline.boundingRect();
    const QGradientStops stops = stopsAcross(light, bounds);
    const auto bands = std::uint32_t(stops.size() - 1);
    Bytes content;
    addBounds(content, bounds);
    content.add(2 * bands, bands, kVertical);
    for (std::uint32_t band = 0; band < bands; ++band) {
        const auto& [top, above] = stops[band];
        const auto& [bottom, below] = stops[band + 1];
        addCorner(content, bounds.left(), top, above);
        addCorner(content, bounds.right(), bottom, below);
    }
    for (std::uint32_t band = 0; band < bands; ++band) content.add(2 * band, 2 * band + 1);
    // As long as if they were triangles.
    for (std::uint32_t band = 0; band < bands; ++band) content.add(0U);

    record(saveState);
    trace(outline);
    record(selectClipPath, Bytes().add(kReplace));
    record(fillGradient, content);
    record(restoreState, Bytes().add(-1));
}

}  // namespace Orvo::Artwork
