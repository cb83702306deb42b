#pragma once

#include <QCoreApplication>
#include <QPainter>

#include "Manager/Scope/plot_geometry.h"

namespace Orvo::Manager {

/// Paints a plot: graticule, scales, traces, cursors, and a tag at each trace's end, which tells
/// the channels apart without their colours.
class PlotPainting {
    Q_DECLARE_TR_FUNCTIONS(Orvo::Manager::PlotPainting)

public:
    PlotPainting(QPainter& painter, const PlotView& view, const PlotGeometry& geometry);

    void paint();

private:
    void paintGraticule(const QRectF& lane);
    void paintVolts(std::size_t lane);
    void paintTimes();
    [[nodiscard]] double sweepsOf(const ScopeTrace& trace) const;
    void paintTrace(const ScopeTrace& trace);
    void paintTags();
    void paintTag(const QString& text, const QRectF& place, const QColor& colour);
    void paintCursors();
    void paintCursor(const QLineF& line, const QString& name, bool isActive);
    void paintSweeps(const QRectF& above);
    void paintNotes();
    [[nodiscard]] int rowStep(const QRectF& lane) const;
    [[nodiscard]] QColor colourOf(Integer channel) const;
    [[nodiscard]] double textHeight() const { return QFontMetricsF(painter_.font()).height(); }

    QPainter& painter_;
    const PlotView& view_;
    const PlotGeometry& geometry_;
};

/// What a plot leaves free for its scales and tags, in a font.
QMarginsF marginsOf(const QFont& font);

}  // namespace Orvo::Manager
