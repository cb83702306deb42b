#include "Manager/Scope/readings.h"

#include <cmath>

#include <QCoreApplication>
#include <QStringList>

#include "Manager/Scope/plot_geometry.h"
#include "Orvo/window/spoken/measures.h"

namespace Orvo::Manager {
namespace {

using Window::inVolts;
using Window::withUnit;

class Readings {
    Q_DECLARE_TR_FUNCTIONS(Orvo::Manager::Readings)
};

const QString kNothing = "–";
const QString kApart = "    ";

QString samplesText(double count) { return Readings::tr("%1 samples").arg(count, 0, 'f', 1); }

double intervals(const ScopeTrace& trace) {
    return std::max(0.0, double(trace.drawn().size()) - 1);
}

QString frequencyText(const ScopeTrace& trace, const WaveFigures& figures) {
    if (!figures.period) return kNothing;
    const auto frequency = frequencyOf(trace, figures);
    return frequency ? withUnit(*frequency, "Hz")
                     : Readings::tr("1 in %1").arg(samplesText(*figures.period));
}

QString timeCursors(const Cursors& cursors, const ScopeTrace& trace) {
    const auto& at = cursors.shares;
    const double apart = std::abs(at[1] - at[0]);
    QStringList texts{"T1 " + placeText(trace, at[0]), "T2 " + placeText(trace, at[1])};
    if (const auto sweep = sweepOf(trace)) {
        texts += "Δt " + withUnit(apart * *sweep, "s");
        texts += "1/Δt " + (apart * *sweep > 0 ? withUnit(1 / (apart * *sweep), "Hz") : kNothing);
    } else {
        texts += Readings::tr("Δ %1 (time unknown)").arg(samplesText(apart * intervals(trace)));
    }
    return texts.join(kApart);
}

QString voltCursors(const Cursors& cursors) {
    const auto& [first, second] = cursors.volts;
    return QStringList{"V1 " + inVolts(first), "V2 " + inVolts(second),
                       "ΔV " + inVolts(std::abs(second - first))}
        .join(kApart);
}

}  // namespace

QString shortName(Integer channel) { return "CH" + QString::number(channel); }

std::optional<double> sweepOf(const ScopeTrace& trace) {
    if (!trace.interval || intervals(trace) == 0) return std::nullopt;
    return *trace.interval * intervals(trace);
}

QString placeText(const ScopeTrace& trace, double share) {
    const auto sweep = sweepOf(trace);
    if (sweep) return withUnit(share * *sweep, "s");
    return Readings::tr("sample %1").arg(1 + qRound(share * intervals(trace)));
}

QString divisionOf(const ScopeTrace& trace) {
    const auto sweep = sweepOf(trace);
    return sweep ? withUnit(*sweep / kColumns, "s") : samplesText(intervals(trace) / kColumns);
}

std::optional<double> frequencyOf(const ScopeTrace& trace, const WaveFigures& figures) {
    if (!figures.period || !trace.interval) return std::nullopt;
    return 1 / (*figures.period * *trace.interval);
}

std::array<QString, kFigures.size()> figureTexts(const ScopeTrace& trace) {
    const auto figures = trace.figures();
    if (!figures) return {kNothing, kNothing, kNothing, kNothing, kNothing};
    return {figures->isSignal ? inVolts(figures->peakToPeak()) : Readings::tr("No signal"),
            inVolts(figures->rms), inVolts(figures->mean), frequencyText(trace, *figures),
            divisionOf(trace)};
}

QString sentenceOf(const ScopeTrace& trace) {
    const QString channel = QString::number(trace.channel);
    const auto figures = trace.figures();
    if (!figures || !figures->isSignal) return Readings::tr("Channel %1: no signal").arg(channel);
    QString peak = Readings::tr("Channel %1: %2 peak").arg(channel, inVolts(figures->peak()));
    return figures->period ? peak + ", " + frequencyText(trace, *figures) : peak;
}

QString cursorText(const PlotView& view) {
    const Cursors& cursors = view.cursors;
    if (!cursors.hasTime && !cursors.hasVolts)
        return Readings::tr("T and V show cursors; the mouse or the arrow keys move them");
    const ScopeTrace none{view.source, {}, std::nullopt};
    const ScopeTrace* trace = view.sourceTrace();
    QStringList texts{shortName(view.source)};
    if (cursors.hasTime) texts += timeCursors(cursors, trace != nullptr ? *trace : none);
    if (cursors.hasVolts) texts += voltCursors(cursors);
    return texts.join(kApart);
}

}  // namespace Orvo::Manager
