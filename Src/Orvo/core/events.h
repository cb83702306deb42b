#pragma once

#include "Orvo/values/types.h"

namespace Orvo {

/// The panel's events, by dispatch id; in C++ a sink overrides those that it wants to hear.
///
/// Arguments are references to copies made for each call: assigning to them changes nothing in the
/// panel. A handler may call the panel, connect and disconnect sinks, and release the panel. An
/// exception that it lets escape goes to the panel's error handler, and so does error 7 when there
/// is no memory for the copies; the panel goes on.
class MarvaneAssistantEvents {
public:
    virtual ~MarvaneAssistantEvents() = default;

    /// A person asks to switch the amplifier on or off.
    virtual void OnOff() {}
    /// A person asks to toggle the mute state of a channel, or of the whole amplifier. `intChannel`
    /// 1 to 4, or 0 for the whole amplifier.
    virtual void Mute([[maybe_unused]] Integer& intChannel) {}
    /// Never raised.
    virtual void reset() {}
    /// Never raised.
    virtual void AuxBus() {}
    /// A person asks for the amplifier's internal data.
    virtual void DownLoad() {}
    /// Never raised.
    virtual void PowerBus([[maybe_unused]] Integer& intChannel) {}
    /// A person moved a channel's volume slider. `intChannel` 1 to 4; `intVolume` in dB, even, -30
    /// to 30.
    virtual void VolumeChange([[maybe_unused]] Integer& intChannel,
                              [[maybe_unused]] Integer& intVolume) {}
    /// The test temperature of a pair: on every move of its slider, and every 1500 ms while it is
    /// not 0. The latter goes on in read-only mode, and while the second pair's tab is disabled,
    /// until `TimerVirtualTemp12` or `TimerVirtualTemp34` stops it. `intChannel` 1 or 2, a pair;
    /// `intValue` in degrees Celsius, 0 to 100.
    virtual void SetTemp([[maybe_unused]] Integer& intChannel, [[maybe_unused]] Integer& intValue) {
    }
    /// A person starts the wave generator for a channel. `intNChannel` 1 to 4; `intTypeWaveForm` 0
    /// is 100 Hz, 1 is 1 kHz, 2 is 10 kHz, 3 is EIAJ (1 kHz), 4 is line in; `intPosNeg` 1 is the
    /// positive input, 2 the negative one.
    virtual void WaveForm([[maybe_unused]] Integer& intNChannel,
                          [[maybe_unused]] Integer& intTypeWaveForm,
                          [[maybe_unused]] Integer& intPosNeg) {}
    /// Service staff entered new information for the selected amplifier. `intIdDevice` the
    /// amplifier's id; `strInformations` any text; `strSnAmp` and `strSnCard` the serial numbers of
    /// the amplifier and of its control module card, not empty.
    virtual void GeneralInformations([[maybe_unused]] Integer& intIdDevice,
                                     [[maybe_unused]] String& strInformations,
                                     [[maybe_unused]] String& strSnAmp,
                                     [[maybe_unused]] String& strSnCard) {}
    /// Never raised.
    virtual void QuickTest() {}
    /// Never raised.
    virtual void ChangeComPort([[maybe_unused]] Integer& intumCommPort) {}
    /// A person picked another amplifier id. `intIdDevice` 1 to 99.
    virtual void ChangeAmpId([[maybe_unused]] Integer& intIdDevice) {}
    /// Never raised.
    virtual void Help() {}
};

}  // namespace Orvo
