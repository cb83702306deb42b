#pragma once

#include "Orvo/values/boolean.h"
#include "Orvo/values/integer_array.h"
#include "Orvo/values/types.h"

namespace Orvo {

/// The panel's members, in interface order. A property is written by a let, whose last parameter is
/// the new value, and read by a get; in C++ these are overloads.
///
/// Integer is a 16-bit, Long a 32-bit signed number; String is length-counted UTF-16 text; Boolean
/// is a 16-bit value, true is -1 and false is 0. A member takes any Boolean but 0 as true, and
/// returns -1 or 0, except `ReadOnly`.
///
/// A channel is 1 to 4, a pair 1 (channels 1 and 2) or 2 (channels 3 and 4), and 0, where it is
/// taken, the whole amplifier. An index outside a member's range does nothing, or reads false,
/// unless the member says otherwise.
///
/// Every member may end with an error: 1001 when it is called from another thread than the panel's,
/// 7 when memory runs out, or whatever the widgets' runtime reports. What it wrote before that
/// stays written, and the panel goes on.
class MarvaneAssistantInterface {
public:
    virtual ~MarvaneAssistantInterface() = default;

    /// The text up to, and without, its first NUL; the whole text when it has none. `strName` any
    /// text. Error 6 when the first NUL lies beyond position 32767, counted from 1.
    virtual String TrimStr(const String& strName) = 0;

    /// The NUL-terminated ANSI text (code page 1252) at an address of the panel's heap.
    /// `lngPointer` a 32-bit address; 0 gives an empty text. Error 5 when the heap doesn't own the
    /// address, or the text doesn't end within its block.
    virtual String LPSTRtoSTRING(Long lngPointer) = 0;

    /// Lists the ports of a print server into the panel's port table and returns their number. When
    /// the enumeration fails, or the panel was given no spooler, the table stays as it is and the
    /// result is what the enumeration reports, normally 0. `ServerName` the server's name, `""` for
    /// this machine. Error 9 after the first 101 ports, which are kept; 6 above 32768 ports; 5 when
    /// a record or a text lies outside what the spooler wrote.
    virtual Long GetAvailablePorts(const String& ServerName) = 0;

    /// Empties the message log.
    virtual void CancellaTesto() = 0;

    /// Adds a line, as it is, at the end of the message log. The panel never scrolls to it; the
    /// window's log follows its end only while it stands there. `strTesto` any text, also an empty
    /// one. Error 7 when the runtime's list is full: the store's holds 2097152 lines, and 67108864
    /// characters in all.
    virtual void AggiugiTesto(const String& strTesto) = 0;

    /// Shows a quick-test row as passed ("PASS") or failed ("FAIL"). `Ncheck` 0 temperature, 1 and
    /// 2 power bus + and -, 3 and 4 aux bus + and -, 5 mains presence. Error 340 for any other row.
    virtual void chkTest(Integer Ncheck, Boolean blnValue) = 0;
    /// Whether a quick-test row shows "PASS". `Ncheck` 0 temperature, 1 and 2 power bus + and -, 3
    /// and 4 aux bus + and -, 5 mains presence. Error 340 for any other row.
    virtual Boolean chkTest(Integer Ncheck) = 0;

    /// Clears quick-test row 5, mains presence.
    virtual void ClearMains() = 0;

    /// Clears quick-test rows 0 to 4.
    virtual void ClearTest() = 0;

    /// Shows whether the link to the amplifier is up.
    virtual void Connected(Boolean blnValue) = 0;

    /// Shows the protection state of a channel, or of the whole amplifier. `intChannel` 1 to 4, or
    /// 0 for the whole amplifier.
    virtual void Protection(Integer intChannel, Boolean blnValue) = 0;

    /// Shows the signal presence of a channel. `intChannel` 1 to 4.
    virtual void Signal(Integer intChannel, Boolean blnValue) = 0;

    /// Enables or disables the tab of the second pair. While it is disabled, channels 3 and 4 don't
    /// count in the amplifier-wide mute lamp. `blnAbilita` any Boolean, handed to the tab
    /// unchanged.
    virtual void AbilitaSlave(Boolean blnAbilita) = 0;

    /// The selected amplifier's id: 1 at first, then as a person picked it or the host wrote it.
    virtual Integer IdDevice() = 0;
    /// Selects an amplifier id and shows it. It raises no event. `intIdDevice` any Integer; the
    /// list offers 1 to 99.
    virtual void IdDevice(Integer intIdDevice) = 0;

    /// Shows the voltage of a pair's positive power rail: the first three digits. `intChannel` 1 or
    /// 2, a pair; `intValue` in volts, from 0. Error 13 for a negative value; from -9 to -1 the
    /// hundreds digit has become 0 by then.
    virtual void VPPower(Integer intChannel, Integer intValue) = 0;
    /// Shows the voltage of a pair's positive auxiliary rail: the first three digits. `intChannel`
    /// 1 or 2, a pair; `intValue` in volts, from 0. Error 13 for a negative value; from -9 to -1
    /// the hundreds digit has become 0 by then.
    virtual void VPAux(Integer intChannel, Integer intValue) = 0;

    /// Shows the clock state of a pair. `intChannel` 1 or 2, a pair.
    virtual void Clock(Integer intChannel, Boolean blnValue) = 0;

    /// Shows the ready state of a pair. `intChannel` 1 or 2, a pair.
    virtual void Ready(Integer intChannel, Boolean blnValue) = 0;

    /// Shows the magnitude of a pair's negative power rail: the first three digits. `intChannel` 1
    /// or 2, a pair; `intValue` in volts, from 0. Error 13 for a negative value; from -9 to -1 the
    /// hundreds digit has become 0 by then.
    virtual void VNPower(Integer intChannel, Integer intValue) = 0;
    /// Shows the magnitude of a pair's negative auxiliary rail: the first three digits.
    /// `intChannel` 1 or 2, a pair; `intValue` in volts, from 0. Error 13 for a negative value;
    /// from -9 to -1 the hundreds digit has become 0 by then.
    virtual void VNAux(Integer intChannel, Integer intValue) = 0;

    /// The power state: false at first, then as the host wrote it.
    virtual Boolean PowerOn() = 0;

    /// Shows mains presence, on both pair tabs.
    virtual void MainPresence(Boolean Status) = 0;

    /// Shows the power state.
    virtual void PowerOn(Boolean Status) = 0;

    /// Shows a channel's volume: the first two digits of the magnitude, with a minus sign unless it
    /// is 0. `intChannel` 1 to 4; `intValue` in dB. Error 6, whatever the channel, for -32768.
    virtual void Volume(Integer intChannel, Integer intValue) = 0;

    /// Puts a channel's slider where it stands for this volume: position (30 - volume) / 2, an odd
    /// volume counting as the next higher one. `intChannel` 1 to 4; `intValue` in dB, -30 to 30 for
    /// a position that the slider can show. Error 6, whatever the channel, for 32767 and from
    /// -32738 down.
    virtual void VolumeSlider(Integer intChannel, Integer intValue) = 0;

    /// Whether a person holds a channel's slider at this moment. A slider that is disabled or
    /// hidden while it is held, be it with its tab, is let go, and reads 0 until it is held anew.
    /// `intChannel` 1 to 4.
    virtual Boolean VolumeSliderButtonDown(Integer intChannel) = 0;

    /// Shows a pair's temperature: the first three digits. `intChannel` 1 or 2, a pair; `intValue`
    /// in degrees Celsius, from 0. Error 13 for a negative value; from -9 to -1 the hundreds digit
    /// has become 0 by then.
    virtual void Temperature(Integer intChannel, Integer intValue) = 0;

    /// Whether `SetTemp` repeats the test temperature of pair 1 every 1500 ms; it does at first.
    /// `bln` any Boolean, handed to the timer unchanged.
    virtual void TimerVirtualTemp12(Boolean bln) = 0;
    /// Whether `SetTemp` repeats the test temperature of pair 2 every 1500 ms; it does at first.
    /// `bln` any Boolean, handed to the timer unchanged.
    virtual void TimerVirtualTemp34(Boolean bln) = 0;

    /// Clears a channel's oscilloscope and draws its grid. `intNCanale` 1 to 4; any other channel
    /// counts as 1.
    virtual void DisegnaAssi(Integer intNCanale) = 0;

    /// Clears a channel's oscilloscope, draws its grid and joins the samples with index 1 up to the
    /// array's upper bound over its width. `intNumCanale` 1 to 4; `arrSamples` samples, of which 9
    /// to 246 lie on the surface from its top to its bottom, with 128 at mid-height. On the panel's
    /// own scopes, 95 pixels high, the 0 V line is at 134. Error 5 for a channel outside 1 to 4;
    /// nothing is drawn then. After the grid has been drawn: 9 for an array without a dimension,
    /// and for one with several dimensions or a lower bound above 1 when its upper bound is 2 or
    /// more; 6 for an upper bound above 32768 or below -32767. For 32768 the samples up to 32767
    /// are joined before error 6.
    virtual void DisegnaFormaDOnda(Integer intNumCanale, const IntegerArray& arrSamples) = 0;

    /// Mutes or unmutes a channel, or all of them and the amplifier-wide lamp. After every write,
    /// whatever the index, that lamp follows when all channels that count agree. `intChannel` 1 to
    /// 4, or 0 for all.
    virtual void Mute(Integer intChannel, Boolean blnValue) = 0;
    /// The mute state of a channel, or that of the amplifier-wide lamp. `intChannel` 1 to 4, or 0
    /// for the whole amplifier.
    virtual Boolean Mute(Integer intChannel) = 0;

    /// -1 keeps a person from changing the amplifier's state, every other value lets them; the
    /// displays follow the host all the same. Asking for the internal data stays possible, and so
    /// does the information entry behind its password. `blnValue` any Boolean. In C++ `invoke`
    /// converts the Integer 1 to -1, read-only; the Boolean 1 is stored as 1.
    virtual void ReadOnly(Boolean blnValue) = 0;
    /// The value as it was written, all 16 bits; 0 at first.
    virtual Boolean ReadOnly() = 0;
};

}  // namespace Orvo
