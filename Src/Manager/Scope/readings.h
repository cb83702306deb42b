#pragma once

#include <array>
#include <optional>

#include <QString>

#include "Manager/Scope/plot_view.h"

// What is read off traces, in words.
namespace Orvo::Manager {

/// "CH1".
QString shortName(Integer channel);

/// Where a share of the width lies on a trace: "12.5 ms", or "sample 120" where no time is known.
QString placeText(const ScopeTrace& trace, double share);

/// From the left to the right end, in seconds.
std::optional<double> sweepOf(const ScopeTrace& trace);

/// "250 µs", or "24.0 samples" where no time is known.
QString divisionOf(const ScopeTrace& trace);

/// Hertz; none without a period or where no time is known.
std::optional<double> frequencyOf(const ScopeTrace& trace, const WaveFigures& figures);

constexpr std::array kFigures{QT_TRANSLATE_NOOP("Orvo::Manager::FiguresTable", "Peak to peak"),
                              QT_TRANSLATE_NOOP("Orvo::Manager::FiguresTable", "RMS"),
                              QT_TRANSLATE_NOOP("Orvo::Manager::FiguresTable", "Mean"),
                              QT_TRANSLATE_NOOP("Orvo::Manager::FiguresTable", "Frequency"),
                              QT_TRANSLATE_NOOP("Orvo::Manager::FiguresTable", "Time / division")};
/// In that order; "–" for what there is not.
std::array<QString, kFigures.size()> figureTexts(const ScopeTrace& trace);

/// "Channel 1: 12.4 V peak, 1.00 kHz".
QString sentenceOf(const ScopeTrace& trace);

/// What the cursors that are shown read; how to get them while there are none.
QString cursorText(const PlotView& view);

}  // namespace Orvo::Manager
