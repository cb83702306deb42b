#pragma once

#include "Orvo/core/events.h"
#include "Orvo/export.h"
#include "Orvo/values/boolean.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// The position that stands for a volume in dB: (30 - volume) / 2, an odd volume counting as the
/// next higher one. Error 6 when a step of it leaves the Integer range.
ORVO_OWN_EXPORT Integer sliderPosition(Integer volume);

/// The volume in dB that a position stands for: (15 - position) * 2. Error 6 as above.
ORVO_OWN_EXPORT Integer volumeAt(Integer position);

/// The volume of each channel: a readout and a slider, which the host sets apart from each other.
/// A slider that a person moves reports the volume and changes nothing else.
class Volume {
public:
    Volume(Widgets::WidgetTree& widgets, MarvaneAssistantEvents& host)
        : widgets_(widgets), host_(host) {}

    /// Another channel than 1 to 4 is passed over, but the errors come first.
    void show(Integer channel, Integer volume);
    void moveSlider(Integer channel, Integer volume);
    [[nodiscard]] Boolean isHeld(Integer channel) const;

    void sliderMoved(Integer channel);

private:
    Widgets::WidgetTree& widgets_;
    MarvaneAssistantEvents& host_;
};

}  // namespace Orvo
