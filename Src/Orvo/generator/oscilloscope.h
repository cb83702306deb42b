#pragma once

#include "Orvo/values/integer_array.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// The oscilloscope of each channel: a grid in volts, and a trace of samples over it. Nothing is
/// kept but the picture.
class Oscilloscope {
public:
    explicit Oscilloscope(Widgets::WidgetTree& widgets) : widgets_(widgets) {}

    /// Clears the channel's surface and draws its grid; channel 1's for any other channel.
    void drawAxes(Integer channel);

    /// Clears, draws the grid and joins the samples with index 1 to the upper bound.
    /// Errors as for MarvaneAssistantInterface::DisegnaFormaDOnda.
    void drawTrace(Integer channel, const IntegerArray& samples);

private:
    Widgets::WidgetTree& widgets_;
};

}  // namespace Orvo
