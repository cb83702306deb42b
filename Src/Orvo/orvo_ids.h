#ifndef ORVO_ORVO_IDS_H
#define ORVO_ORVO_IDS_H

// Generated from the tables: cmake --build BUILD --target orvo-make-reference

/// @file
/// The panel's members and events in numbers. They are part of the contract: none ever changes.

// NOLINTBEGIN(readability-identifier-naming)

/// What is done with a member.
enum orvo_kind {
    ORVO_METHOD = 0,
    ORVO_GET = 1,
    ORVO_LET = 2,
};

/// The types of values.
enum orvo_type {
    ORVO_NONE = 0,
    ORVO_BOOLEAN = 1,
    ORVO_INTEGER = 2,
    ORVO_LONG = 3,
    ORVO_NUMBER = 4,
    ORVO_STRING = 5,
    ORVO_INTEGER_ARRAY = 6,
};

/// The members, by the ids that `orvo_invoke` takes.
enum orvo_member {
    /// method (String strName) gives String: The text up to, and without, its first NUL; the whole
    /// text when it has none. `strName` any text. Error 6 when the first NUL lies beyond position
    /// 32767, counted from 1.
    ORVO_MEMBER_TrimStr = 0x60030015,
    /// method (Long lngPointer) gives String: The NUL-terminated ANSI text (code page 1252) at an
    /// address of the panel's heap. `lngPointer` a 32-bit address; 0 gives an empty text. Error 5
    /// when the heap doesn't own the address, or the text doesn't end within its block.
    ORVO_MEMBER_LPSTRtoSTRING = 0x60030016,
    /// method (String ServerName) gives Long: Lists the ports of a print server into the panel's
    /// port table and returns their number. When the enumeration fails, or the panel was given no
    /// spooler, the table stays as it is and the result is what the enumeration reports, normally
    /// 0. `ServerName` the server's name, `""` for this machine. Error 9 after the first 101 ports,
    /// which are kept; 6 above 32768 ports; 5 when a record or a text lies outside what the spooler
    /// wrote.
    ORVO_MEMBER_GetAvailablePorts = 0x60030017,
    /// method (): Empties the message log.
    ORVO_MEMBER_CancellaTesto = 0x60030018,
    /// method (String strTesto): Adds a line, as it is, at the end of the message log. The panel
    /// never scrolls to it; the window's log follows its end only while it stands there. `strTesto`
    /// any text, also an empty one. Error 7 when the runtime's list is full: the store's holds
    /// 2097152 lines, and 67108864 characters in all.
    ORVO_MEMBER_AggiugiTesto = 0x60030019,
    /// let (Integer Ncheck, Boolean blnValue): Shows a quick-test row as passed ("PASS") or failed
    /// ("FAIL"). `Ncheck` 0 temperature, 1 and 2 power bus + and -, 3 and 4 aux bus + and -, 5
    /// mains presence. Error 340 for any other row.
    /// get (Integer Ncheck) gives Boolean: Whether a quick-test row shows "PASS". `Ncheck` 0
    /// temperature, 1 and 2 power bus + and -, 3 and 4 aux bus + and -, 5 mains presence. Error 340
    /// for any other row.
    ORVO_MEMBER_chkTest = 0x68030014,
    /// method (): Clears quick-test row 5, mains presence.
    ORVO_MEMBER_ClearMains = 0x6003001A,
    /// method (): Clears quick-test rows 0 to 4.
    ORVO_MEMBER_ClearTest = 0x6003001B,
    /// let (Boolean blnValue): Shows whether the link to the amplifier is up.
    ORVO_MEMBER_Connected = 0x68030013,
    /// let (Integer intChannel, Boolean blnValue): Shows the protection state of a channel, or of
    /// the whole amplifier. `intChannel` 1 to 4, or 0 for the whole amplifier.
    ORVO_MEMBER_Protection = 0x68030012,
    /// let (Integer intChannel, Boolean blnValue): Shows the signal presence of a channel.
    /// `intChannel` 1 to 4.
    ORVO_MEMBER_Signal = 0x68030011,
    /// method (Boolean blnAbilita): Enables or disables the tab of the second pair. While it is
    /// disabled, channels 3 and 4 don't count in the amplifier-wide mute lamp. `blnAbilita` any
    /// Boolean, handed to the tab unchanged.
    ORVO_MEMBER_AbilitaSlave = 0x6003001C,
    /// get () gives Integer: The selected amplifier's id: 1 at first, then as a person picked it or
    /// the host wrote it.
    /// let (Integer intIdDevice): Selects an amplifier id and shows it. It raises no event.
    /// `intIdDevice` any Integer; the list offers 1 to 99.
    ORVO_MEMBER_IdDevice = 0x68030010,
    /// let (Integer intChannel, Integer intValue): Shows the voltage of a pair's positive power
    /// rail: the first three digits. `intChannel` 1 or 2, a pair; `intValue` in volts, from 0.
    /// Error 13 for a negative value; from -9 to -1 the hundreds digit has become 0 by then.
    ORVO_MEMBER_VPPower = 0x6803000F,
    /// let (Integer intChannel, Integer intValue): Shows the voltage of a pair's positive auxiliary
    /// rail: the first three digits. `intChannel` 1 or 2, a pair; `intValue` in volts, from 0.
    /// Error 13 for a negative value; from -9 to -1 the hundreds digit has become 0 by then.
    ORVO_MEMBER_VPAux = 0x6803000E,
    /// let (Integer intChannel, Boolean blnValue): Shows the clock state of a pair. `intChannel` 1
    /// or 2, a pair.
    ORVO_MEMBER_Clock = 0x6803000D,
    /// let (Integer intChannel, Boolean blnValue): Shows the ready state of a pair. `intChannel` 1
    /// or 2, a pair.
    ORVO_MEMBER_Ready = 0x6803000C,
    /// let (Integer intChannel, Integer intValue): Shows the magnitude of a pair's negative power
    /// rail: the first three digits. `intChannel` 1 or 2, a pair; `intValue` in volts, from 0.
    /// Error 13 for a negative value; from -9 to -1 the hundreds digit has become 0 by then.
    ORVO_MEMBER_VNPower = 0x6803000B,
    /// let (Integer intChannel, Integer intValue): Shows the magnitude of a pair's negative
    /// auxiliary rail: the first three digits. `intChannel` 1 or 2, a pair; `intValue` in volts,
    /// from 0. Error 13 for a negative value; from -9 to -1 the hundreds digit has become 0 by
    /// then.
    ORVO_MEMBER_VNAux = 0x6803000A,
    /// get () gives Boolean: The power state: false at first, then as the host wrote it.
    /// let (Boolean Status): Shows the power state.
    ORVO_MEMBER_PowerOn = 0x68030009,
    /// let (Boolean Status): Shows mains presence, on both pair tabs.
    ORVO_MEMBER_MainPresence = 0x68030008,
    /// let (Integer intChannel, Integer intValue): Shows a channel's volume: the first two digits
    /// of the magnitude, with a minus sign unless it is 0. `intChannel` 1 to 4; `intValue` in dB.
    /// Error 6, whatever the channel, for -32768.
    ORVO_MEMBER_Volume = 0x68030007,
    /// let (Integer intChannel, Integer intValue): Puts a channel's slider where it stands for this
    /// volume: position (30 - volume) / 2, an odd volume counting as the next higher one.
    /// `intChannel` 1 to 4; `intValue` in dB, -30 to 30 for a position that the slider can show.
    /// Error 6, whatever the channel, for 32767 and from -32738 down.
    ORVO_MEMBER_VolumeSlider = 0x68030006,
    /// get (Integer intChannel) gives Boolean: Whether a person holds a channel's slider at this
    /// moment. A slider that is disabled or hidden while it is held, be it with its tab, is let go,
    /// and reads 0 until it is held anew. `intChannel` 1 to 4.
    ORVO_MEMBER_VolumeSliderButtonDown = 0x68030005,
    /// let (Integer intChannel, Integer intValue): Shows a pair's temperature: the first three
    /// digits. `intChannel` 1 or 2, a pair; `intValue` in degrees Celsius, from 0. Error 13 for a
    /// negative value; from -9 to -1 the hundreds digit has become 0 by then.
    ORVO_MEMBER_Temperature = 0x68030004,
    /// let (Boolean bln): Whether `SetTemp` repeats the test temperature of pair 1 every 1500 ms;
    /// it does at first. `bln` any Boolean, handed to the timer unchanged.
    ORVO_MEMBER_TimerVirtualTemp12 = 0x68030003,
    /// let (Boolean bln): Whether `SetTemp` repeats the test temperature of pair 2 every 1500 ms;
    /// it does at first. `bln` any Boolean, handed to the timer unchanged.
    ORVO_MEMBER_TimerVirtualTemp34 = 0x68030002,
    /// method (Integer intNCanale): Clears a channel's oscilloscope and draws its grid.
    /// `intNCanale` 1 to 4; any other channel counts as 1.
    ORVO_MEMBER_DisegnaAssi = 0x60030042,
    /// method (Integer intNumCanale, Integer array arrSamples): Clears a channel's oscilloscope,
    /// draws its grid and joins the samples with index 1 up to the array's upper bound over its
    /// width. `intNumCanale` 1 to 4; `arrSamples` samples, of which 9 to 246 lie on the surface
    /// from its top to its bottom, with 128 at mid-height. On the panel's own scopes, 95 pixels
    /// high, the 0 V line is at 134. Error 5 for a channel outside 1 to 4; nothing is drawn then.
    /// After the grid has been drawn: 9 for an array without a dimension, and for one with several
    /// dimensions or a lower bound above 1 when its upper bound is 2 or more; 6 for an upper bound
    /// above 32768 or below -32767. For 32768 the samples up to 32767 are joined before error 6.
    ORVO_MEMBER_DisegnaFormaDOnda = 0x60030043,
    /// let (Integer intChannel, Boolean blnValue): Mutes or unmutes a channel, or all of them and
    /// the amplifier-wide lamp. After every write, whatever the index, that lamp follows when all
    /// channels that count agree. `intChannel` 1 to 4, or 0 for all.
    /// get (Integer intChannel) gives Boolean: The mute state of a channel, or that of the
    /// amplifier-wide lamp. `intChannel` 1 to 4, or 0 for the whole amplifier.
    ORVO_MEMBER_Mute = 0x68030001,
    /// let (Boolean blnValue): -1 keeps a person from changing the amplifier's state, every other
    /// value lets them; the displays follow the host all the same. Asking for the internal data
    /// stays possible, and so does the information entry behind its password. `blnValue` any
    /// Boolean. In C++ `invoke` converts the Integer 1 to -1, read-only; the Boolean 1 is stored as
    /// 1.
    /// get () gives Boolean: The value as it was written, all 16 bits; 0 at first.
    ORVO_MEMBER_ReadOnly = 0x68030000,
};

/// The events, by the ids that handlers are told.
enum orvo_event {
    /// (): A person asks to switch the amplifier on or off.
    ORVO_EVENT_OnOff = 1,
    /// (Integer intChannel): A person asks to toggle the mute state of a channel, or of the whole
    /// amplifier. `intChannel` 1 to 4, or 0 for the whole amplifier.
    ORVO_EVENT_Mute = 2,
    /// (): Never raised.
    ORVO_EVENT_reset = 3,
    /// (): Never raised.
    ORVO_EVENT_AuxBus = 4,
    /// (): A person asks for the amplifier's internal data.
    ORVO_EVENT_DownLoad = 5,
    /// (Integer intChannel): Never raised.
    ORVO_EVENT_PowerBus = 6,
    /// (Integer intChannel, Integer intVolume): A person moved a channel's volume slider.
    /// `intChannel` 1 to 4; `intVolume` in dB, even, -30 to 30.
    ORVO_EVENT_VolumeChange = 7,
    /// (Integer intChannel, Integer intValue): The test temperature of a pair: on every move of its
    /// slider, and every 1500 ms while it is not 0. The latter goes on in read-only mode, and while
    /// the second pair's tab is disabled, until `TimerVirtualTemp12` or `TimerVirtualTemp34` stops
    /// it. `intChannel` 1 or 2, a pair; `intValue` in degrees Celsius, 0 to 100.
    ORVO_EVENT_SetTemp = 8,
    /// (Integer intNChannel, Integer intTypeWaveForm, Integer intPosNeg): A person starts the wave
    /// generator for a channel. `intNChannel` 1 to 4; `intTypeWaveForm` 0 is 100 Hz, 1 is 1 kHz, 2
    /// is 10 kHz, 3 is EIAJ (1 kHz), 4 is line in; `intPosNeg` 1 is the positive input, 2 the
    /// negative one.
    ORVO_EVENT_WaveForm = 9,
    /// (Integer intIdDevice, String strInformations, String strSnAmp, String strSnCard): Service
    /// staff entered new information for the selected amplifier. `intIdDevice` the amplifier's id;
    /// `strInformations` any text; `strSnAmp` and `strSnCard` the serial numbers of the amplifier
    /// and of its control module card, not empty.
    ORVO_EVENT_GeneralInformations = 10,
    /// (): Never raised.
    ORVO_EVENT_QuickTest = 11,
    /// (Integer intumCommPort): Never raised.
    ORVO_EVENT_ChangeComPort = 12,
    /// (Integer intIdDevice): A person picked another amplifier id. `intIdDevice` 1 to 99.
    ORVO_EVENT_ChangeAmpId = 13,
    /// (): Never raised.
    ORVO_EVENT_Help = 14,
};

// NOLINTEND(readability-identifier-naming)

#endif
