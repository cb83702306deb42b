#pragma once

#include <memory>

#include <QList>
#include <QString>
#include <QWidget>

#include "Orvo/core/connection.h"
#include "Orvo/export.h"

// Written from the tables by orvo-reference.
// clang-format off

namespace Orvo {
class MarvaneAssistant;
class MarvaneAssistantEvents;
}  // namespace Orvo

namespace Orvo::Window {

/// The panel's members as functions and slots, and its events as signals, all with Qt's types.
///
/// They have the panel's own names with a small initial; what writes a property begins with `set`,
/// and what reads a truth with `is`. Samples are those from index 1 on. Errors are thrown as the
/// panel throws them, and error 6 where a number is beyond 16 bits: from a slot that is connected to
/// a signal they reach whoever emits it.
///
/// A signal is emitted while its event is raised, before other sinks of the panel are told. A slot
/// may do what a sink's handler may, deleting the widget included.
class ORVO_EXPORT PanelInterface : public QWidget {
    Q_OBJECT

public:
    ~PanelInterface() override;

    [[nodiscard]] virtual MarvaneAssistant& panel() const = 0;

    /// The text up to, and without, its first NUL; the whole text when it has none. `name` any
    /// text. Error 6 when the first NUL lies beyond position 32767, counted from 1.
    Q_SLOT QString trimStr(const QString& name);
    /// The NUL-terminated ANSI text (code page 1252) at an address of the panel's heap. `pointer` a
    /// 32-bit address; 0 gives an empty text. Error 5 when the heap doesn't own the address, or the
    /// text doesn't end within its block.
    Q_SLOT QString lPSTRtoSTRING(int pointer);
    /// Lists the ports of a print server into the panel's port table and returns their number. When
    /// the enumeration fails, or the panel was given no spooler, the table stays as it is and the
    /// result is what the enumeration reports, normally 0. `serverName` the server's name, `""` for
    /// this machine. Error 9 after the first 101 ports, which are kept; 6 above 32768 ports; 5 when
    /// a record or a text lies outside what the spooler wrote.
    Q_SLOT int getAvailablePorts(const QString& serverName);
    /// Empties the message log.
    Q_SLOT void cancellaTesto();
    /// Adds a line, as it is, at the end of the message log. The panel never scrolls to it; the
    /// window's log follows its end only while it stands there. `testo` any text, also an empty
    /// one. Error 7 when the runtime's list is full: the store's holds 2097152 lines, and 67108864
    /// characters in all.
    Q_SLOT void aggiugiTesto(const QString& testo);
    /// Shows a quick-test row as passed ("PASS") or failed ("FAIL"). `ncheck` 0 temperature, 1 and
    /// 2 power bus + and -, 3 and 4 aux bus + and -, 5 mains presence. Error 340 for any other row.
    Q_SLOT void setChkTest(int ncheck, bool value);
    /// Whether a quick-test row shows "PASS". `ncheck` 0 temperature, 1 and 2 power bus + and -, 3
    /// and 4 aux bus + and -, 5 mains presence. Error 340 for any other row.
    [[nodiscard]] bool isChkTest(int ncheck) const;
    /// Clears quick-test row 5, mains presence.
    Q_SLOT void clearMains();
    /// Clears quick-test rows 0 to 4.
    Q_SLOT void clearTest();
    /// Shows whether the link to the amplifier is up.
    Q_SLOT void setConnected(bool value);
    /// Shows the protection state of a channel, or of the whole amplifier. `channel` 1 to 4, or 0
    /// for the whole amplifier.
    Q_SLOT void setProtection(int channel, bool value);
    /// Shows the signal presence of a channel. `channel` 1 to 4.
    Q_SLOT void setSignal(int channel, bool value);
    /// Enables or disables the tab of the second pair. While it is disabled, channels 3 and 4 don't
    /// count in the amplifier-wide mute lamp. `abilita` any Boolean, handed to the tab unchanged.
    Q_SLOT void abilitaSlave(bool abilita);
    /// The selected amplifier's id: 1 at first, then as a person picked it or the host wrote it.
    [[nodiscard]] int idDevice() const;
    /// Selects an amplifier id and shows it. It raises no event. `idDevice` any Integer; the list
    /// offers 1 to 99.
    Q_SLOT void setIdDevice(int idDevice);
    /// Shows the voltage of a pair's positive power rail: the first three digits. `channel` 1 or 2,
    /// a pair; `value` in volts, from 0. Error 13 for a negative value; from -9 to -1 the hundreds
    /// digit has become 0 by then.
    Q_SLOT void setVPPower(int channel, int value);
    /// Shows the voltage of a pair's positive auxiliary rail: the first three digits. `channel` 1
    /// or 2, a pair; `value` in volts, from 0. Error 13 for a negative value; from -9 to -1 the
    /// hundreds digit has become 0 by then.
    Q_SLOT void setVPAux(int channel, int value);
    /// Shows the clock state of a pair. `channel` 1 or 2, a pair.
    Q_SLOT void setClock(int channel, bool value);
    /// Shows the ready state of a pair. `channel` 1 or 2, a pair.
    Q_SLOT void setReady(int channel, bool value);
    /// Shows the magnitude of a pair's negative power rail: the first three digits. `channel` 1 or
    /// 2, a pair; `value` in volts, from 0. Error 13 for a negative value; from -9 to -1 the
    /// hundreds digit has become 0 by then.
    Q_SLOT void setVNPower(int channel, int value);
    /// Shows the magnitude of a pair's negative auxiliary rail: the first three digits. `channel` 1
    /// or 2, a pair; `value` in volts, from 0. Error 13 for a negative value; from -9 to -1 the
    /// hundreds digit has become 0 by then.
    Q_SLOT void setVNAux(int channel, int value);
    /// The power state: false at first, then as the host wrote it.
    [[nodiscard]] bool isPowerOn() const;
    /// Shows mains presence, on both pair tabs.
    Q_SLOT void setMainPresence(bool status);
    /// Shows the power state.
    Q_SLOT void setPowerOn(bool status);
    /// Shows a channel's volume: the first two digits of the magnitude, with a minus sign unless it
    /// is 0. `channel` 1 to 4; `value` in dB. Error 6, whatever the channel, for -32768.
    Q_SLOT void setVolume(int channel, int value);
    /// Puts a channel's slider where it stands for this volume: position (30 - volume) / 2, an odd
    /// volume counting as the next higher one. `channel` 1 to 4; `value` in dB, -30 to 30 for a
    /// position that the slider can show. Error 6, whatever the channel, for 32767 and from -32738
    /// down.
    Q_SLOT void setVolumeSlider(int channel, int value);
    /// Whether a person holds a channel's slider at this moment. A slider that is disabled or
    /// hidden while it is held, be it with its tab, is let go, and reads 0 until it is held anew.
    /// `channel` 1 to 4.
    [[nodiscard]] bool isVolumeSliderButtonDown(int channel) const;
    /// Shows a pair's temperature: the first three digits. `channel` 1 or 2, a pair; `value` in
    /// degrees Celsius, from 0. Error 13 for a negative value; from -9 to -1 the hundreds digit has
    /// become 0 by then.
    Q_SLOT void setTemperature(int channel, int value);
    /// Whether `SetTemp` repeats the test temperature of pair 1 every 1500 ms; it does at first.
    /// `bln` any Boolean, handed to the timer unchanged.
    Q_SLOT void setTimerVirtualTemp12(bool bln);
    /// Whether `SetTemp` repeats the test temperature of pair 2 every 1500 ms; it does at first.
    /// `bln` any Boolean, handed to the timer unchanged.
    Q_SLOT void setTimerVirtualTemp34(bool bln);
    /// Clears a channel's oscilloscope and draws its grid. `nCanale` 1 to 4; any other channel
    /// counts as 1.
    Q_SLOT void disegnaAssi(int nCanale);
    /// Clears a channel's oscilloscope, draws its grid and joins the samples with index 1 up to the
    /// array's upper bound over its width. `numCanale` 1 to 4; `samples` samples, of which 9 to 246
    /// lie on the surface from its top to its bottom, with 128 at mid-height. On the panel's own
    /// scopes, 95 pixels high, the 0 V line is at 134. Error 5 for a channel outside 1 to 4;
    /// nothing is drawn then. After the grid has been drawn: 9 for an array without a dimension,
    /// and for one with several dimensions or a lower bound above 1 when its upper bound is 2 or
    /// more; 6 for an upper bound above 32768 or below -32767. For 32768 the samples up to 32767
    /// are joined before error 6.
    Q_SLOT void disegnaFormaDOnda(int numCanale, const QList<short>& samples);
    /// Mutes or unmutes a channel, or all of them and the amplifier-wide lamp. After every write,
    /// whatever the index, that lamp follows when all channels that count agree. `channel` 1 to 4,
    /// or 0 for all.
    Q_SLOT void setMute(int channel, bool value);
    /// The mute state of a channel, or that of the amplifier-wide lamp. `channel` 1 to 4, or 0 for
    /// the whole amplifier.
    [[nodiscard]] bool isMute(int channel) const;

Q_SIGNALS:
    /// A person asks to switch the amplifier on or off.
    void onOff();
    /// A person asks to toggle the mute state of a channel, or of the whole amplifier. `channel` 1
    /// to 4, or 0 for the whole amplifier.
    void mute(int channel);
    /// Never raised.
    void reset();
    /// Never raised.
    void auxBus();
    /// A person asks for the amplifier's internal data.
    void downLoad();
    /// Never raised.
    void powerBus(int channel);
    /// A person moved a channel's volume slider. `channel` 1 to 4; `volume` in dB, even, -30 to 30.
    void volumeChange(int channel, int volume);
    /// The test temperature of a pair: on every move of its slider, and every 1500 ms while it is
    /// not 0. The latter goes on in read-only mode, and while the second pair's tab is disabled,
    /// until `TimerVirtualTemp12` or `TimerVirtualTemp34` stops it. `channel` 1 or 2, a pair;
    /// `value` in degrees Celsius, 0 to 100.
    void setTemp(int channel, int value);
    /// A person starts the wave generator for a channel. `nChannel` 1 to 4; `typeWaveForm` 0 is 100
    /// Hz, 1 is 1 kHz, 2 is 10 kHz, 3 is EIAJ (1 kHz), 4 is line in; `posNeg` 1 is the positive
    /// input, 2 the negative one.
    void waveForm(int nChannel, int typeWaveForm, int posNeg);
    /// Service staff entered new information for the selected amplifier. `idDevice` the amplifier's
    /// id; `informations` any text; `snAmp` and `snCard` the serial numbers of the amplifier and of
    /// its control module card, not empty.
    void generalInformations(int idDevice, const QString& informations, const QString& snAmp, const QString& snCard);
    /// Never raised.
    void quickTest();
    /// Never raised.
    void changeComPort(int intumCommPort);
    /// A person picked another amplifier id. `idDevice` 1 to 99.
    void changeAmpId(int idDevice);
    /// Never raised.
    void help();

protected:
    explicit PanelInterface(QWidget* parent);

    /// Emits the signals for this panel's events from now on, until the connection ends.
    [[nodiscard]] Connection emitEventsOf(MarvaneAssistant& panel);

private:
    class Sink;
    const std::unique_ptr<MarvaneAssistantEvents> sink_;
};

}  // namespace Orvo::Window
