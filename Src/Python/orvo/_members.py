"""Generated from the tables: cmake --build BUILD --target orvo-make-reference"""

from __future__ import annotations

from collections.abc import Callable, Sequence

from ._core import Core, Indexed, Subscription


class Members(Core):
    """The panel's members and events, wherever the panel is."""

    def TrimStr(self, strName: str) -> str:
        """
        The text up to, and without, its first NUL; the whole text when it has none. `strName` any
        text. Error 6 when the first NUL lies beyond position 32767, counted from 1.
        """
        return self._call(0x60030015, str, strName)

    def LPSTRtoSTRING(self, lngPointer: int) -> str:
        """
        The NUL-terminated ANSI text (code page 1252) at an address of the panel's heap.
        `lngPointer` a 32-bit address; 0 gives an empty text. Error 5 when the heap doesn't own the
        address, or the text doesn't end within its block.
        """
        return self._call(0x60030016, str, lngPointer)

    def GetAvailablePorts(self, ServerName: str) -> int:
        """
        Lists the ports of a print server into the panel's port table and returns their number. When
        the enumeration fails, or the panel was given no spooler, the table stays as it is and the
        result is what the enumeration reports, normally 0. `ServerName` the server's name, `""` for
        this machine. Error 9 after the first 101 ports, which are kept; 6 above 32768 ports; 5 when
        a record or a text lies outside what the spooler wrote.
        """
        return self._call(0x60030017, int, ServerName)

    def CancellaTesto(self) -> None:
        """
        Empties the message log.
        """
        self._do(0x60030018)

    def AggiugiTesto(self, strTesto: str) -> None:
        """
        Adds a line, as it is, at the end of the message log. The panel never scrolls to it; the
        window's log follows its end only while it stands there. `strTesto` any text, also an empty
        one. Error 7 when the runtime's list is full: the store's holds 2097152 lines, and 67108864
        characters in all.
        """
        self._do(0x60030019, strTesto)

    @property
    def chkTest(self) -> Indexed[bool]:
        """
        By Ncheck.
        Written: Shows a quick-test row as passed ("PASS") or failed ("FAIL"). `Ncheck` 0
        temperature, 1 and 2 power bus + and -, 3 and 4 aux bus + and -, 5 mains presence. Error 340
        for any other row.
        Read: Whether a quick-test row shows "PASS". `Ncheck` 0 temperature, 1 and 2 power bus + and
        -, 3 and 4 aux bus + and -, 5 mains presence. Error 340 for any other row.
        """
        return Indexed(self, 0x68030014, bool)

    def ClearMains(self) -> None:
        """
        Clears quick-test row 5, mains presence.
        """
        self._do(0x6003001A)

    def ClearTest(self) -> None:
        """
        Clears quick-test rows 0 to 4.
        """
        self._do(0x6003001B)

    @property
    def Connected(self) -> bool:
        """
        Shows whether the link to the amplifier is up. It can only be written.
        """
        return self._get(0x68030013, bool)

    @Connected.setter
    def Connected(self, blnValue: bool) -> None:
        self._let(0x68030013, blnValue)

    @property
    def Protection(self) -> Indexed[bool]:
        """
        By intChannel.
        Shows the protection state of a channel, or of the whole amplifier. `intChannel` 1 to 4, or
        0 for the whole amplifier. It can only be written.
        """
        return Indexed(self, 0x68030012, bool)

    @property
    def Signal(self) -> Indexed[bool]:
        """
        By intChannel.
        Shows the signal presence of a channel. `intChannel` 1 to 4. It can only be written.
        """
        return Indexed(self, 0x68030011, bool)

    def AbilitaSlave(self, blnAbilita: bool) -> None:
        """
        Enables or disables the tab of the second pair. While it is disabled, channels 3 and 4 don't
        count in the amplifier-wide mute lamp. `blnAbilita` any Boolean, handed to the tab
        unchanged.
        """
        self._do(0x6003001C, blnAbilita)

    @property
    def IdDevice(self) -> int:
        """
        Written: Selects an amplifier id and shows it. It raises no event. `intIdDevice` any
        Integer; the list offers 1 to 99.
        Read: The selected amplifier's id: 1 at first, then as a person picked it or the host wrote
        it.
        """
        return self._get(0x68030010, int)

    @IdDevice.setter
    def IdDevice(self, intIdDevice: int) -> None:
        self._let(0x68030010, intIdDevice)

    @property
    def VPPower(self) -> Indexed[int]:
        """
        By intChannel.
        Shows the voltage of a pair's positive power rail: the first three digits. `intChannel` 1 or
        2, a pair; `intValue` in volts, from 0. Error 13 for a negative value; from -9 to -1 the
        hundreds digit has become 0 by then. It can only be written.
        """
        return Indexed(self, 0x6803000F, int)

    @property
    def VPAux(self) -> Indexed[int]:
        """
        By intChannel.
        Shows the voltage of a pair's positive auxiliary rail: the first three digits. `intChannel`
        1 or 2, a pair; `intValue` in volts, from 0. Error 13 for a negative value; from -9 to -1
        the hundreds digit has become 0 by then. It can only be written.
        """
        return Indexed(self, 0x6803000E, int)

    @property
    def Clock(self) -> Indexed[bool]:
        """
        By intChannel.
        Shows the clock state of a pair. `intChannel` 1 or 2, a pair. It can only be written.
        """
        return Indexed(self, 0x6803000D, bool)

    @property
    def Ready(self) -> Indexed[bool]:
        """
        By intChannel.
        Shows the ready state of a pair. `intChannel` 1 or 2, a pair. It can only be written.
        """
        return Indexed(self, 0x6803000C, bool)

    @property
    def VNPower(self) -> Indexed[int]:
        """
        By intChannel.
        Shows the magnitude of a pair's negative power rail: the first three digits. `intChannel` 1
        or 2, a pair; `intValue` in volts, from 0. Error 13 for a negative value; from -9 to -1 the
        hundreds digit has become 0 by then. It can only be written.
        """
        return Indexed(self, 0x6803000B, int)

    @property
    def VNAux(self) -> Indexed[int]:
        """
        By intChannel.
        Shows the magnitude of a pair's negative auxiliary rail: the first three digits.
        `intChannel` 1 or 2, a pair; `intValue` in volts, from 0. Error 13 for a negative value;
        from -9 to -1 the hundreds digit has become 0 by then. It can only be written.
        """
        return Indexed(self, 0x6803000A, int)

    @property
    def PowerOn(self) -> bool:
        """
        Written: Shows the power state.
        Read: The power state: false at first, then as the host wrote it.
        """
        return self._get(0x68030009, bool)

    @PowerOn.setter
    def PowerOn(self, Status: bool) -> None:
        self._let(0x68030009, Status)

    @property
    def MainPresence(self) -> bool:
        """
        Shows mains presence, on both pair tabs. It can only be written.
        """
        return self._get(0x68030008, bool)

    @MainPresence.setter
    def MainPresence(self, Status: bool) -> None:
        self._let(0x68030008, Status)

    @property
    def Volume(self) -> Indexed[int]:
        """
        By intChannel.
        Shows a channel's volume: the first two digits of the magnitude, with a minus sign unless it
        is 0. `intChannel` 1 to 4; `intValue` in dB. Error 6, whatever the channel, for -32768. It
        can only be written.
        """
        return Indexed(self, 0x68030007, int)

    @property
    def VolumeSlider(self) -> Indexed[int]:
        """
        By intChannel.
        Puts a channel's slider where it stands for this volume: position (30 - volume) / 2, an odd
        volume counting as the next higher one. `intChannel` 1 to 4; `intValue` in dB, -30 to 30 for
        a position that the slider can show. Error 6, whatever the channel, for 32767 and from
        -32738 down. It can only be written.
        """
        return Indexed(self, 0x68030006, int)

    @property
    def VolumeSliderButtonDown(self) -> Indexed[bool]:
        """
        By intChannel.
        Whether a person holds a channel's slider at this moment. A slider that is disabled or
        hidden while it is held, be it with its tab, is let go, and reads 0 until it is held anew.
        `intChannel` 1 to 4. It can only be read.
        """
        return Indexed(self, 0x68030005, bool)

    @property
    def Temperature(self) -> Indexed[int]:
        """
        By intChannel.
        Shows a pair's temperature: the first three digits. `intChannel` 1 or 2, a pair; `intValue`
        in degrees Celsius, from 0. Error 13 for a negative value; from -9 to -1 the hundreds digit
        has become 0 by then. It can only be written.
        """
        return Indexed(self, 0x68030004, int)

    @property
    def TimerVirtualTemp12(self) -> bool:
        """
        Whether `SetTemp` repeats the test temperature of pair 1 every 1500 ms; it does at first.
        `bln` any Boolean, handed to the timer unchanged. It can only be written.
        """
        return self._get(0x68030003, bool)

    @TimerVirtualTemp12.setter
    def TimerVirtualTemp12(self, bln: bool) -> None:
        self._let(0x68030003, bln)

    @property
    def TimerVirtualTemp34(self) -> bool:
        """
        Whether `SetTemp` repeats the test temperature of pair 2 every 1500 ms; it does at first.
        `bln` any Boolean, handed to the timer unchanged. It can only be written.
        """
        return self._get(0x68030002, bool)

    @TimerVirtualTemp34.setter
    def TimerVirtualTemp34(self, bln: bool) -> None:
        self._let(0x68030002, bln)

    def DisegnaAssi(self, intNCanale: int) -> None:
        """
        Clears a channel's oscilloscope and draws its grid. `intNCanale` 1 to 4; any other channel
        counts as 1.
        """
        self._do(0x60030042, intNCanale)

    def DisegnaFormaDOnda(self, intNumCanale: int, arrSamples: Sequence[int]) -> None:
        """
        Clears a channel's oscilloscope, draws its grid and joins the samples with index 1 up to the
        array's upper bound over its width. `intNumCanale` 1 to 4; `arrSamples` samples, of which 9
        to 246 lie on the surface from its top to its bottom, with 128 at mid-height. On the panel's
        own scopes, 95 pixels high, the 0 V line is at 134. Error 5 for a channel outside 1 to 4;
        nothing is drawn then. After the grid has been drawn: 9 for an array without a dimension,
        and for one with several dimensions or a lower bound above 1 when its upper bound is 2 or
        more; 6 for an upper bound above 32768 or below -32767. For 32768 the samples up to 32767
        are joined before error 6.
        """
        self._do(0x60030043, intNumCanale, arrSamples)

    @property
    def Mute(self) -> Indexed[bool]:
        """
        By intChannel.
        Written: Mutes or unmutes a channel, or all of them and the amplifier-wide lamp. After every
        write, whatever the index, that lamp follows when all channels that count agree.
        `intChannel` 1 to 4, or 0 for all.
        Read: The mute state of a channel, or that of the amplifier-wide lamp. `intChannel` 1 to 4,
        or 0 for the whole amplifier.
        """
        return Indexed(self, 0x68030001, bool)

    @property
    def ReadOnly(self) -> bool:
        """
        Written: -1 keeps a person from changing the amplifier's state, every other value lets them;
        the displays follow the host all the same. Asking for the internal data stays possible, and
        so does the information entry behind its password. `blnValue` any Boolean. In C++ `invoke`
        converts the Integer 1 to -1, read-only; the Boolean 1 is stored as 1.
        Read: The value as it was written, all 16 bits; 0 at first.
        """
        return self._get(0x68030000, bool)

    @ReadOnly.setter
    def ReadOnly(self, blnValue: bool) -> None:
        self._let(0x68030000, blnValue)

    def on_on_off(self, handler: Callable[[], object]) -> Subscription:
        """
        handler(): A person asks to switch the amplifier on or off.
        """
        return self._on(1, handler)

    def on_mute(self, handler: Callable[[int], object]) -> Subscription:
        """
        handler(intChannel): A person asks to toggle the mute state of a channel, or of the whole
        amplifier. `intChannel` 1 to 4, or 0 for the whole amplifier.
        """
        return self._on(2, handler)

    def on_reset(self, handler: Callable[[], object]) -> Subscription:
        """
        handler(): Never raised.
        """
        return self._on(3, handler)

    def on_aux_bus(self, handler: Callable[[], object]) -> Subscription:
        """
        handler(): Never raised.
        """
        return self._on(4, handler)

    def on_down_load(self, handler: Callable[[], object]) -> Subscription:
        """
        handler(): A person asks for the amplifier's internal data.
        """
        return self._on(5, handler)

    def on_power_bus(self, handler: Callable[[int], object]) -> Subscription:
        """
        handler(intChannel): Never raised.
        """
        return self._on(6, handler)

    def on_volume_change(self, handler: Callable[[int, int], object]) -> Subscription:
        """
        handler(intChannel, intVolume): A person moved a channel's volume slider. `intChannel` 1 to
        4; `intVolume` in dB, even, -30 to 30.
        """
        return self._on(7, handler)

    def on_set_temp(self, handler: Callable[[int, int], object]) -> Subscription:
        """
        handler(intChannel, intValue): The test temperature of a pair: on every move of its slider,
        and every 1500 ms while it is not 0. The latter goes on in read-only mode, and while the
        second pair's tab is disabled, until `TimerVirtualTemp12` or `TimerVirtualTemp34` stops it.
        `intChannel` 1 or 2, a pair; `intValue` in degrees Celsius, 0 to 100.
        """
        return self._on(8, handler)

    def on_wave_form(self, handler: Callable[[int, int, int], object]) -> Subscription:
        """
        handler(intNChannel, intTypeWaveForm, intPosNeg): A person starts the wave generator for a
        channel. `intNChannel` 1 to 4; `intTypeWaveForm` 0 is 100 Hz, 1 is 1 kHz, 2 is 10 kHz, 3 is
        EIAJ (1 kHz), 4 is line in; `intPosNeg` 1 is the positive input, 2 the negative one.
        """
        return self._on(9, handler)

    def on_general_informations(self, handler: Callable[[int, str, str, str], object]) -> Subscription:
        """
        handler(intIdDevice, strInformations, strSnAmp, strSnCard): Service staff entered new
        information for the selected amplifier. `intIdDevice` the amplifier's id; `strInformations`
        any text; `strSnAmp` and `strSnCard` the serial numbers of the amplifier and of its control
        module card, not empty.
        """
        return self._on(10, handler)

    def on_quick_test(self, handler: Callable[[], object]) -> Subscription:
        """
        handler(): Never raised.
        """
        return self._on(11, handler)

    def on_change_com_port(self, handler: Callable[[int], object]) -> Subscription:
        """
        handler(intumCommPort): Never raised.
        """
        return self._on(12, handler)

    def on_change_amp_id(self, handler: Callable[[int], object]) -> Subscription:
        """
        handler(intIdDevice): A person picked another amplifier id. `intIdDevice` 1 to 99.
        """
        return self._on(13, handler)

    def on_help(self, handler: Callable[[], object]) -> Subscription:
        """
        handler(): Never raised.
        """
        return self._on(14, handler)


EVENT_IDS = {
    "OnOff": 1,
    "Mute": 2,
    "reset": 3,
    "AuxBus": 4,
    "DownLoad": 5,
    "PowerBus": 6,
    "VolumeChange": 7,
    "SetTemp": 8,
    "WaveForm": 9,
    "GeneralInformations": 10,
    "QuickTest": 11,
    "ChangeComPort": 12,
    "ChangeAmpId": 13,
    "Help": 14,
}
