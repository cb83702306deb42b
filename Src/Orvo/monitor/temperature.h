#pragma once

#include "Orvo/core/events.h"
#include "Orvo/values/boolean.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// The temperature readout of each pair, and the thermal protection test: a slider picks a test
/// temperature in degrees Celsius, and a timer repeats it to the host while it is not 0.
class Temperature {
public:
    Temperature(Widgets::WidgetTree& widgets, MarvaneAssistantEvents& host)
        : widgets_(widgets), host_(host) {}

    /// Another pair than 1 and 2 is passed over. Error 13 for a negative value.
    void show(Integer pair, Integer degrees);
    void runTimer(Integer pair, Boolean value);

    void sliderMoved(Integer pair);
    void timerTicked(Integer pair);

private:
    [[nodiscard]] Integer testTemperature(Integer pair) const;

    Widgets::WidgetTree& widgets_;
    MarvaneAssistantEvents& host_;
};

}  // namespace Orvo
