#pragma once

#include "Orvo/core/events.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// An input of a channel, as the WaveForm event counts them.
enum class Polarity : Integer { positive = 1, negative = 2 };

/// The wave generator of each pair: which signal goes to which input, shown in a routing diagram.
/// The option buttons are the state; Start reads them and tells the host.
class WaveGenerator {
public:
    WaveGenerator(Widgets::WidgetTree& widgets, MarvaneAssistantEvents& host)
        : widgets_(widgets), host_(host) {}

    /// Redraws the pair's diagram for a channel (1 to 4) and one of its inputs.
    void routeToPositive(Integer channel) { route(channel, Polarity::positive); }
    void routeToNegative(Integer channel) { route(channel, Polarity::negative); }

    /// Raises WaveForm for the pair's (1 or 2) selected destination.
    void start(Integer pair);

private:
    void route(Integer channel, Polarity polarity);
    [[nodiscard]] Integer waveType(Integer pair) const;

    Widgets::WidgetTree& widgets_;
    MarvaneAssistantEvents& host_;
};

}  // namespace Orvo
