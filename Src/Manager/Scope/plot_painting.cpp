#include "Manager/Scope/plot_painting.h"

#include <algorithm>

#include <QFontMetricsF>

#include "Manager/Scope/plot_palette.h"
#include "Manager/Scope/readings.h"

namespace Orvo::Manager {
namespace {

constexpr double kGap = 6;        // between what is beside each other
constexpr double kTickReach = 3;  // a fifth of a division on the axes
constexpr int kTicksPerDivision = 5;
constexpr double kTraceWidth = 1.6;
constexpr int kColumnsPerText = 2;

QString voltsText(double volts) { return QString::number(volts) + " V"; }

}  // namespace

QMarginsF marginsOf(const QFont& font) {
    const QFontMetricsF metrics(font);
    return {metrics.horizontalAdvance("-200 V") + 2 * kGap, metrics.height() + 2 * kGap,
            metrics.horizontalAdvance("CH4") + 4 * kGap, metrics.height() + 2 * kGap};
}

PlotPainting::PlotPainting(QPainter& painter, const PlotView& view, const PlotGeometry& geometry)
    : painter_(painter), view_(view), geometry_(geometry) {}

QColor PlotPainting::colourOf(Integer channel) const {
    return view_.isOld ? PlotPalette::kOldTrace : PlotPalette::kTraces.at(std::size_t(channel - 1));
}

void PlotPainting::paint() {
    for (std::size_t lane = 0; lane < view_.lanes(); ++lane) {
        paintGraticule(geometry_.lane(lane));
        paintVolts(lane);
    }
    paintTimes();
    const ScopeTrace* source = view_.sourceTrace();
    for (const ScopeTrace& trace : view_.traces) {
        if (&trace != source) paintTrace(trace);
    }
    if (source != nullptr) paintTrace(*source);  // in front of one that is the same
    paintTags();
    paintCursors();
    paintNotes();
}

// A line for each division, or for every second or fourth where their scale had no room.
int PlotPainting::rowStep(const QRectF& lane) const {
    const double division = lane.height() / kRows;
    return division >= textHeight() ? 1 : 2 * division >= textHeight() ? 2 : kRows / 2;
}

void PlotPainting::paintGraticule(const QRectF& lane) {
    const auto rule = [this](double x1, double y1, double x2, double y2, const QColor& colour) {
        painter_.setPen(colour);
        painter_.drawLine(qRound(x1), qRound(y1), qRound(x2), qRound(y2));
    };
    const QPointF centre = lane.center();
    for (int i = 0; i <= kColumns * kTicksPerDivision; ++i) {
        const double x = lane.left() + i * lane.width() / (kColumns * kTicksPerDivision);
        rule(x, centre.y() - kTickReach, x, centre.y() + kTickReach, PlotPalette::kAxis);
        if (i % kTicksPerDivision != 0) continue;
        rule(x, lane.top(), x, lane.bottom(), PlotPalette::kGrid);
    }
    for (int row = 0; row <= kRows; row += rowStep(lane)) {
        const double y = lane.top() + row * lane.height() / kRows;
        rule(lane.left(), y, lane.right(), y, PlotPalette::kGrid);
    }
    rule(centre.x(), lane.top(), centre.x(), lane.bottom(), PlotPalette::kAxis);
    rule(lane.left(), centre.y(), lane.right(), centre.y(), PlotPalette::kAxis);
}

// Not at the edges, where the next lane's would be.
void PlotPainting::paintVolts(std::size_t lane) {
    painter_.setPen(PlotPalette::kText);
    const int step = rowStep(geometry_.lane(lane));
    for (int row = step - kRows / 2; row < kRows / 2; row += step) {
        const double volts = row * view_.voltsPerDivision;
        const QRectF place(0, geometry_.y(lane, volts) - textHeight() / 2,
                           geometry_.area().left() - kGap, textHeight());
        painter_.drawText(place, Qt::AlignRight | Qt::AlignVCenter, voltsText(volts));
    }
}

void PlotPainting::paintTimes() {
    const ScopeTrace* source = view_.sourceTrace();
    if (source == nullptr || source->drawn().empty()) return;
    painter_.setPen(PlotPalette::kText);
    const double width = geometry_.area().width() / kColumns * kColumnsPerText;
    for (int column = 0; column <= kColumns; column += kColumnsPerText) {
        const double share = double(column) / kColumns;
        const QRectF place(geometry_.x(share) - width / 2, geometry_.area().bottom() + kGap, width,
                           textHeight());
        painter_.drawText(place, Qt::AlignCenter, placeText(*source, share));
    }
}

// Of the time axis, which is the source's; as wide as that where no time is known.
double PlotPainting::sweepsOf(const ScopeTrace& trace) const {
    const ScopeTrace* source = view_.sourceTrace();
    const auto axis = source != nullptr ? sweepOf(*source) : std::nullopt;
    return axis ? sweepOf(trace).value_or(*axis) / *axis : 1;
}

void PlotPainting::paintTrace(const ScopeTrace& trace) {
    const std::size_t lane = view_.laneOf(trace.channel);
    const QPolygonF line = geometry_.line(lane, trace.drawn(), sweepsOf(trace));
    const bool isDense = double(line.size()) > geometry_.area().width();
    painter_.save();
    painter_.setClipRect(geometry_.lane(lane));
    // What covers whole columns looks no better for what it would take.
    painter_.setRenderHint(QPainter::Antialiasing, !isDense);
    painter_.setPen(QPen(colourOf(trace.channel), isDense ? 1 : kTraceWidth));
    // Line by line: joining them takes several times as long, and isn't seen.
    QList<QLineF> lines;
    for (qsizetype i = 1; i < line.size(); ++i) lines += QLineF(line[i - 1], line[i]);
    painter_.drawLines(lines);
    painter_.restore();
}

void PlotPainting::paintTags() {
    struct Tag {
        Integer channel;
        double y;
    };
    std::vector<Tag> tags;
    for (const ScopeTrace& trace : view_.traces) {
        if (trace.drawn().empty()) continue;
        const std::size_t lane = view_.laneOf(trace.channel);
        const double end = geometry_.y(lane, scopeScale().volts(trace.drawn().back()));
        const QRectF its = geometry_.lane(lane);
        tags.push_back({trace.channel, std::clamp(end, its.top(), its.bottom())});
    }
    std::ranges::stable_sort(tags, {}, &Tag::y);
    std::vector<double> wanted(tags.size());
    std::ranges::transform(tags, wanted.begin(), &Tag::y);
    const auto places = spreadOut(wanted, textHeight() + 2, geometry_.area().bottom());
    const double width = QFontMetricsF(painter_.font()).horizontalAdvance("CH4") + kGap;
    for (std::size_t i = 0; i < tags.size(); ++i) {
        const QRectF place(geometry_.area().right() + kGap, places[i] - textHeight() / 2, width,
                           textHeight());
        paintTag(shortName(tags[i].channel), place, colourOf(tags[i].channel));
    }
}

void PlotPainting::paintTag(const QString& text, const QRectF& place, const QColor& colour) {
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(colour);
    painter_.drawRoundedRect(place, 2, 2);
    painter_.setPen(PlotPalette::kGround);
    painter_.drawText(place, Qt::AlignCenter, text);
}

void PlotPainting::paintCursors() {
    const Cursors& cursors = view_.cursors;
    const std::size_t lane = view_.laneOf(view_.source);
    const QRectF its = geometry_.lane(lane);
    for (const std::size_t i : {0U, 1U}) {
        const QString number = QString::number(i + 1);
        const double x = geometry_.x(cursors.shares[i]);
        const double y = geometry_.y(lane, cursors.volts[i]);
        const bool isActive = cursors.active == i;
        const QRectF& area = geometry_.area();
        if (cursors.hasTime) paintCursor({x, area.top(), x, area.bottom()}, "T" + number, isActive);
        if (cursors.hasVolts) paintCursor({its.left(), y, its.right(), y}, "V" + number, isActive);
    }
}

void PlotPainting::paintCursor(const QLineF& line, const QString& name, bool isActive) {
    painter_.setPen(QPen(PlotPalette::kCursor, 1, isActive ? Qt::SolidLine : Qt::DashLine));
    painter_.drawLine(line);
    const double width = QFontMetricsF(painter_.font()).horizontalAdvance(name) + kGap;
    const QPointF corner = line.dx() == 0 ? QPointF(line.x1() - width / 2, line.y2() - textHeight())
                                          : QPointF(line.x1() + 2, line.y1() - textHeight() / 2);
    paintTag(name, {corner, QSizeF(width, textHeight())},
             isActive ? PlotPalette::kCursor : PlotPalette::kText);
}

// What has no time beside what has some isn't on the same axis.
void PlotPainting::paintSweeps(const QRectF& above) {
    const ScopeTrace* source = view_.sourceTrace();
    QRectF place = above;
    for (const ScopeTrace& trace : view_.traces) {
        if (source == nullptr || trace.drawn().empty() ||
            sweepOf(trace).has_value() == sweepOf(*source).has_value())
            continue;
        const QString text = tr("%1: %2/div").arg(shortName(trace.channel), divisionOf(trace));
        painter_.setPen(colourOf(trace.channel));
        painter_.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, text);
        place.setLeft(place.left() + QFontMetricsF(painter_.font()).horizontalAdvance(text) +
                      2 * kGap);
    }
}

void PlotPainting::paintNotes() {
    const QRectF& area = geometry_.area();
    const QRectF above(area.left(), 0, area.width(), area.top());
    paintSweeps(above);
    painter_.setPen(PlotPalette::kNote);
    painter_.drawText(above, Qt::AlignRight | Qt::AlignVCenter, view_.note);
    const bool isEmpty = std::ranges::all_of(
        view_.traces, [](const ScopeTrace& trace) { return trace.drawn().empty(); });
    if (!isEmpty) return;
    painter_.setPen(PlotPalette::kText);
    painter_.drawText(area, Qt::AlignCenter,
                      view_.traces.empty() ? tr("No channel is on") : tr("No signal"));
}

}  // namespace Orvo::Manager
