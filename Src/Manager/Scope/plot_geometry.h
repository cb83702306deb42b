#pragma once

#include <span>

#include <QPolygonF>
#include <QRectF>

#include "Manager/Scope/plot_view.h"

namespace Orvo::Manager {

// What a plot is divided into, across and down.
constexpr int kColumns = 10;
constexpr int kRows = 8;

/// Where things lie on a plot: lanes one below the other, each from the left to the right end of
/// the sweep, and from 4 divisions above 0 V to 4 below.
class PlotGeometry {
public:
    PlotGeometry(const QRectF& area, const PlotView& view);

    [[nodiscard]] const QRectF& area() const { return area_; }
    [[nodiscard]] QRectF lane(std::size_t lane) const;

    [[nodiscard]] double x(double share) const { return area_.left() + share * area_.width(); }
    /// Within 0 to 1.
    [[nodiscard]] double shareAt(double x) const;
    [[nodiscard]] double y(std::size_t lane, double volts) const;
    /// Within what the lane shows.
    [[nodiscard]] double voltsAt(std::size_t lane, double y) const;
    [[nodiscard]] double mostVolts() const { return mostVolts_; }

    /// A trace's line: a point for each sample, or the least and the greatest of each column of
    /// pixels where there are more samples than those. Its sweep is so many times as long as the
    /// time axis; what is beyond the axis may be left out.
    [[nodiscard]] QPolygonF line(std::size_t lane, std::span<const Integer> samples,
                                 double sweeps = 1) const;

private:
    [[nodiscard]] QPolygonF denseLine(std::size_t lane, std::span<const Integer> samples,
                                      double sweeps) const;

    QRectF area_;
    std::size_t lanes_;
    double mostVolts_;
};

/// The places nearest to those wanted, which are in order, that are `gap` apart and not below
/// `bottom`.
std::vector<double> spreadOut(std::vector<double> wanted, double gap, double bottom);

}  // namespace Orvo::Manager
