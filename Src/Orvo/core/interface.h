#pragma once

#include "Orvo/values/boolean.h"
#include "Orvo/values/integer_array.h"
#include "Orvo/values/types.h"

namespace Orvo {

/// The panel's members, in interface order. A property is a pair of overloads: with one argument
/// more it writes.
///
/// Indexes: a channel is 1 to 4, a pair 1 (channels 1 and 2) or 2 (channels 3 and 4), and 0, where
/// it is taken, the whole amplifier. An index outside a member's range does nothing, and reads
/// false, unless the member says otherwise. A setter takes any non-zero Boolean as true.
///
/// Every member may throw an Error. What it wrote before that stays written.
class MarvaneAssistantInterface {
public:
    virtual ~MarvaneAssistantInterface() = default;

    /// The text up to its first NUL. Error 6 when that lies beyond position 32767 (from 1).
    virtual String TrimStr(const String& strName) = 0;

    /// The NUL-terminated ANSI text (code page 1252) at a 32-bit address of the panel's heap; empty
    /// for address 0. Error 5 when the heap doesn't own the address, or the text doesn't end within
    /// its block.
    virtual String LPSTRtoSTRING(Long lngPointer) = 0;

    /// Lists the ports of a print server ("" is this machine) into the panel's port table and
    /// returns their number; what the enumeration reports, normally 0, when it fails or when the
    /// panel was given no spooler (see Platform). Error 9 after the first 101 ports, error 6 above
    /// 32768.
    virtual Long GetAvailablePorts(const String& ServerName) = 0;

    /// Empties the message log.
    virtual void CancellaTesto() = 0;

    /// Adds a line, as it is, at the end of the message log. Error 7 when the runtime's list is
    /// full; Orvo::Store's holds 2,097,152 lines and 67,108,864 characters.
    virtual void AggiugiTesto(const String& strTesto) = 0;

    /// Shows quick-test row 0 to 5 as passed or failed. Error 340 for any other row.
    virtual void chkTest(Integer Ncheck, Boolean blnValue) = 0;
    /// Whether the row shows "PASS".
    virtual Boolean chkTest(Integer Ncheck) = 0;

    /// Clears quick-test row 5, mains presence.
    virtual void ClearMains() = 0;

    /// Clears quick-test rows 0 to 4.
    virtual void ClearTest() = 0;

    /// Shows whether the link to the amplifier is up.
    virtual void Connected(Boolean blnValue) = 0;

    /// Protection of a channel, or of the whole amplifier (0).
    virtual void Protection(Integer intChannel, Boolean blnValue) = 0;

    /// Signal presence of a channel.
    virtual void Signal(Integer intChannel, Boolean blnValue) = 0;

    /// Enables the tab of the second pair; a disabled one doesn't count in the mute summary.
    virtual void AbilitaSlave(Boolean blnAbilita) = 0;

    /// The selected amplifier's id: 1 at first, then as picked or written. Any value is taken;
    /// writing raises no event.
    virtual Integer IdDevice() = 0;
    virtual void IdDevice(Integer intIdDevice) = 0;

    /// Positive power rail of a pair: the first three digits of the magnitude in volts.
    /// Error 13 for a negative value.
    virtual void VPPower(Integer intChannel, Integer intValue) = 0;
    /// Positive auxiliary rail of a pair; as VPPower.
    virtual void VPAux(Integer intChannel, Integer intValue) = 0;

    /// Clock lamp of a pair.
    virtual void Clock(Integer intChannel, Boolean blnValue) = 0;

    /// Ready lamp of a pair.
    virtual void Ready(Integer intChannel, Boolean blnValue) = 0;

    /// Negative power rail of a pair; as VPPower, the magnitude.
    virtual void VNPower(Integer intChannel, Integer intValue) = 0;
    /// Negative auxiliary rail of a pair; as VPPower, the magnitude.
    virtual void VNAux(Integer intChannel, Integer intValue) = 0;

    /// The power state as last written; false at first.
    virtual Boolean PowerOn() = 0;

    /// Mains presence, shown on both pair tabs.
    virtual void MainPresence(Boolean Status) = 0;

    virtual void PowerOn(Boolean Status) = 0;

    /// Volume readout of a channel in dB: the first two digits of the magnitude, with a minus sign
    /// unless it is 0. Error 6, whatever the channel, for -32768.
    virtual void Volume(Integer intChannel, Integer intValue) = 0;

    /// Puts a channel's slider where it stands for this volume in dB: position (30 - volume) / 2,
    /// an odd volume counting as the next higher one. Error 6, whatever the channel, for 32767 and
    /// from -32738 down.
    virtual void VolumeSlider(Integer intChannel, Integer intValue) = 0;

    /// Whether a person holds a channel's slider at this moment.
    virtual Boolean VolumeSliderButtonDown(Integer intChannel) = 0;

    /// Temperature of a pair in degrees Celsius: the first three digits. Error 13 for a negative
    /// value.
    virtual void Temperature(Integer intChannel, Integer intValue) = 0;

    /// Whether pair 1's test temperature is repeated every 1500 ms; it is at first.
    virtual void TimerVirtualTemp12(Boolean bln) = 0;
    /// The same for pair 2.
    virtual void TimerVirtualTemp34(Boolean bln) = 0;

    /// Clears a channel's oscilloscope and draws its grid; channel 1's for any other channel.
    virtual void DisegnaAssi(Integer intNCanale) = 0;

    /// Clears a channel's oscilloscope, draws its grid and joins the samples with index 1 up to the
    /// array's upper bound over its width; 128 lies near 0 V, larger samples lie lower.
    /// Error 5 for a channel outside 1 to 4, and nothing is drawn. After the grid has been drawn:
    /// error 9 for an array without a dimension, and for one of several dimensions or beginning
    /// above 1 unless its upper bound is below 2; error 6 for an upper bound above 32768 or below
    /// -32767. For 32768 the samples up to 32767 are joined before error 6.
    virtual void DisegnaFormaDOnda(Integer intNumCanale, const IntegerArray& arrSamples) = 0;

    /// Mute state of a channel, or of all and the amplifier-wide lamp (0). The amplifier-wide lamp
    /// follows when all channels agree, after every write, whatever the index.
    virtual void Mute(Integer intChannel, Boolean blnValue) = 0;
    virtual Boolean Mute(Integer intChannel) = 0;

    /// -1 keeps a person from changing the amplifier's state; every other value lets them. The
    /// value is kept and read back as it was written. Asking for the internal data stays possible,
    /// and so does the amplifier information entry behind its password.
    virtual void ReadOnly(Boolean blnValue) = 0;
    virtual Boolean ReadOnly() = 0;
};

}  // namespace Orvo
