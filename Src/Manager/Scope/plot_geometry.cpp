#include "Manager/Scope/plot_geometry.h"

#include <algorithm>

namespace Orvo::Manager {
namespace {

constexpr double kBetweenLanes = 6;  // pixels

}  // namespace

const ScopeTrace* PlotView::sourceTrace() const {
    const auto trace = std::ranges::find(traces, source, &ScopeTrace::channel);
    return trace != traces.end() ? &*trace : nullptr;
}

std::size_t PlotView::lanes() const {
    return arrangement == Arrangement::overlaid ? 1 : std::max<std::size_t>(traces.size(), 1);
}

std::size_t PlotView::laneOf(Integer channel) const {
    if (arrangement == Arrangement::overlaid) return 0;
    const auto trace = std::ranges::find(traces, channel, &ScopeTrace::channel);
    return trace != traces.end() ? std::size_t(trace - traces.begin()) : 0;
}

PlotGeometry::PlotGeometry(const QRectF& area, const PlotView& view)
    : area_(area), lanes_(view.lanes()), mostVolts_(view.voltsPerDivision * kRows / 2) {}

QRectF PlotGeometry::lane(std::size_t lane) const {
    const double height = (area_.height() + kBetweenLanes) / double(lanes_);
    return {area_.left(), area_.top() + double(lane) * height, area_.width(),
            height - kBetweenLanes};
}

double PlotGeometry::shareAt(double x) const {
    return std::clamp((x - area_.left()) / area_.width(), 0.0, 1.0);
}

double PlotGeometry::y(std::size_t lane, double volts) const {
    const QRectF its = this->lane(lane);
    return its.center().y() - volts / mostVolts_ * its.height() / 2;
}

double PlotGeometry::voltsAt(std::size_t lane, double y) const {
    const QRectF its = this->lane(lane);
    const double up = (its.center().y() - y) / (its.height() / 2);
    return std::clamp(up, -1.0, 1.0) * mostVolts_;
}

QPolygonF PlotGeometry::line(std::size_t lane, std::span<const Integer> samples,
                             double sweeps) const {
    if (double(samples.size()) > 2 * area_.width() * sweeps)
        return denseLine(lane, samples, sweeps);
    QPolygonF line;
    const double last = std::max<double>(1, double(samples.size()) - 1);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        line += QPointF(x(sweeps * double(i) / last), y(lane, scopeScale().volts(samples[i])));
    }
    return line;
}

QPolygonF PlotGeometry::denseLine(std::size_t lane, std::span<const Integer> samples,
                                  double sweeps) const {
    QPolygonF line;
    const auto columns = std::max<std::size_t>(1, std::size_t(area_.width() * sweeps));
    const auto shown = std::min(columns, std::size_t(area_.width()) + 1);
    for (std::size_t column = 0; column < shown; ++column) {
        const std::size_t first = column * samples.size() / columns;
        const std::size_t end = (column + 1) * samples.size() / columns;
        const auto [least, greatest] = std::ranges::minmax(samples.subspan(first, end - first));
        const double across = area_.left() + double(column) + 0.5;
        line += QPointF(across, y(lane, scopeScale().volts(least)));
        line += QPointF(across, y(lane, scopeScale().volts(greatest)));
    }
    return line;
}

std::vector<double> spreadOut(std::vector<double> wanted, double gap, double bottom) {
    for (std::size_t i = 1; i < wanted.size(); ++i) {
        wanted[i] = std::max(wanted[i], wanted[i - 1] + gap);
    }
    for (std::size_t i = wanted.size(); i > 0; --i) {
        wanted[i - 1] = std::min(wanted[i - 1], bottom);
        bottom = wanted[i - 1] - gap;
    }
    return wanted;
}

}  // namespace Orvo::Manager
