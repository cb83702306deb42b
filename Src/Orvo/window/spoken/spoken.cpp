#include "Orvo/window/spoken/spoken.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "Orvo/generator/wave_figures.h"
#include "Orvo/monitor/volume.h"
#include "Orvo/store/shown.h"
#include "Orvo/values/indexed.h"
#include "Orvo/window/drawing/shown_text.h"
#include "Orvo/window/drawing/slider_track.h"
#include "Orvo/window/spoken/measures.h"
#include "Orvo/window/spoken/names.h"

namespace Orvo::Window {

namespace {

using Layout::Kind;
using Layout::kindOf;
using Runtime::isLit;

QString captionOf(const Runtime::Store& store, WidgetId label) {
    return shown(store.get<Runtime::StoredLabel>(label).state().caption).trimmed();
}

bool isOn(const Runtime::Store& store, WidgetId check) {
    return store.get<Runtime::StoredCheck>(check).state().value == Widgets::CheckValue::checked;
}

constexpr auto kReadouts = joined(
    ofEach(Layout::kPairs,
           [](Integer, const Layout::Pair& pair) {
               return std::array{&pair.temperature, &pair.positivePower, &pair.negativePower,
                                 &pair.positiveAux, &pair.negativeAux};
           }),
    ofEach(Layout::kChannels, [](Integer, const auto& its) { return std::array{&its.volume}; }));

std::optional<int> numberOn(const Runtime::Store& store, const Layout::Readout& readout) {
    const auto number = Runtime::magnitudeOn(store, readout);
    const bool isNegative = readout.sign && captionOf(store, *readout.sign) == "-";
    return number && isNegative ? -*number : number;
}

// How long its samples last isn't known to the panel.
QString inWords(const Widgets::Trace& trace) {
    const auto figures = waveFigures(trace.samples, sampleScale(trace.height));
    if (!figures || !figures->isSignal) return "no signal";
    QString peak = inVolts(figures->peak()) + " peak";
    if (!figures->period) return peak;
    const double cycles = trace.upperBound / *figures->period;
    return peak + ", " + QString::number(cycles, 'f', 1) + " cycles across";
}

QString traceOn(const Runtime::Store& store, WidgetId picture) {
    for (const auto& drawn : store.get<Runtime::StoredPicture>(picture).state().drawing) {
        if (const auto* trace = std::get_if<Widgets::Trace>(&drawn)) return inWords(*trace);
    }
    return "no signal";
}

QString textOf(const Runtime::Store& store, WidgetId label) {
    const QString text = captionOf(store, label);
    return text.isEmpty() || text == "-" ? "no result" : text;
}

}  // namespace

const Layout::Readout* readoutWith(WidgetId part) {
    const auto* found = std::ranges::find_if(kReadouts, [part](const Layout::Readout* readout) {
        return readout->sign == part || std::ranges::count(readout->digits(), part) > 0;
    });
    return found != kReadouts.end() ? *found : nullptr;
}

WidgetId speakerOf(WidgetId id) {
    const Layout::Readout* readout = readoutWith(id);
    return readout != nullptr ? readout->places[0].id : id;
}

int measureAt(WidgetId slider, int position) {
    return zeroOf(slider) == ZeroAt::top ? volumeAt(Integer(position)) : position;
}

int positionAt(const Runtime::Store& store, WidgetId slider, double measure) {
    const auto& state = store.get<Runtime::StoredSlider>(slider).state();
    const auto [least, most] = std::minmax(
        {measureAt(slider, Runtime::SliderState::kMinimum), measureAt(slider, state.maximum)});
    const auto within = Integer(std::lround(std::clamp<double>(measure, least, most)));
    return zeroOf(slider) == ZeroAt::top ? sliderPosition(within) : within;
}

std::optional<int> numberOf(const Runtime::Store& store, WidgetId id) {
    switch (kindOf(id)) {
        case Kind::digit:
            return numberOn(store, *readoutWith(id));
        case Kind::slider:
            return measureAt(id, store.get<Runtime::StoredSlider>(id).state().shown());
        default:
            return std::nullopt;
    }
}

QString valueOf(const Runtime::Store& store, WidgetId id) {
    switch (kindOf(id)) {
        case Kind::shape:
            return isLit(store, id) ? "lit" : "dark";
        case Kind::label:
            return textOf(store, id);
        case Kind::picture:
            return traceOn(store, id);
        case Kind::combo:
            return shown(store.get<Runtime::StoredCombo>(id).state().text);
        case Kind::check:
            return isOn(store, id) ? "on" : "off";
        case Kind::digit:
        case Kind::slider:
            break;
        default:
            return {};
    }
    const auto number = numberOf(store, id);
    return number ? QString("%1 %2").arg(*number).arg(unitOf(speakerOf(id))) : "no value";
}

QString sentenceOf(const Runtime::Store& store, WidgetId id) {
    const QString value = valueOf(store, id);
    return value.isEmpty() ? nameOf(id) : nameOf(id) + ": " + value;
}

}  // namespace Orvo::Window
