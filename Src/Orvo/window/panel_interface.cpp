#include "Orvo/window/panel_interface.h"

#include <variant>

#include "Orvo/core/marvane_assistant.h"
#include "Orvo/window/drawing/text.h"

// Written from the tables by orvo-reference.
// clang-format off

namespace Orvo::Window {
namespace {

Integer toInteger(int number) {
    return std::get<Integer>(convert(Long{number}, ValueType::integer));
}

IntegerArray toArray(const QList<short>& samples) {
    return {1, {samples.begin(), samples.end()}};
}

}  // namespace

class PanelInterface::Sink final : public MarvaneAssistantEvents {
public:
    explicit Sink(PanelInterface& widget) : widget_(widget) {}

    void OnOff() override { Q_EMIT widget_.onOff(); }
    void Mute(Integer& channel) override { Q_EMIT widget_.mute(channel); }
    void reset() override { Q_EMIT widget_.reset(); }
    void AuxBus() override { Q_EMIT widget_.auxBus(); }
    void DownLoad() override { Q_EMIT widget_.downLoad(); }
    void PowerBus(Integer& channel) override { Q_EMIT widget_.powerBus(channel); }
    void VolumeChange(Integer& channel, Integer& volume) override { Q_EMIT widget_.volumeChange(channel, volume); }
    void SetTemp(Integer& channel, Integer& value) override { Q_EMIT widget_.setTemp(channel, value); }
    void WaveForm(Integer& nChannel, Integer& typeWaveForm, Integer& posNeg) override { Q_EMIT widget_.waveForm(nChannel, typeWaveForm, posNeg); }
    void GeneralInformations(Integer& idDevice, String& informations, String& snAmp, String& snCard) override { Q_EMIT widget_.generalInformations(idDevice, toQt(informations), toQt(snAmp), toQt(snCard)); }
    void QuickTest() override { Q_EMIT widget_.quickTest(); }
    void ChangeComPort(Integer& intumCommPort) override { Q_EMIT widget_.changeComPort(intumCommPort); }
    void ChangeAmpId(Integer& idDevice) override { Q_EMIT widget_.changeAmpId(idDevice); }
    void Help() override { Q_EMIT widget_.help(); }

private:
    PanelInterface& widget_;
};

PanelInterface::PanelInterface(QWidget* parent) : QWidget(parent), sink_(new Sink(*this)) {}
PanelInterface::~PanelInterface() = default;

Connection PanelInterface::emitEventsOf(MarvaneAssistant& panel) { return panel.connect(*sink_); }

// What a slot changes is the panel. NOLINTBEGIN(readability-make-member-function-const)
QString PanelInterface::trimStr(const QString& name) { return toQt(panel().TrimStr(fromQt(name))); }
QString PanelInterface::lPSTRtoSTRING(int pointer) { return toQt(panel().LPSTRtoSTRING(pointer)); }
int PanelInterface::getAvailablePorts(const QString& serverName) { return panel().GetAvailablePorts(fromQt(serverName)); }
void PanelInterface::cancellaTesto() { panel().CancellaTesto(); }
void PanelInterface::aggiugiTesto(const QString& testo) { panel().AggiugiTesto(fromQt(testo)); }
void PanelInterface::setChkTest(int ncheck, bool value) { panel().chkTest(toInteger(ncheck), value); }
bool PanelInterface::isChkTest(int ncheck) const { return bool(panel().chkTest(toInteger(ncheck))); }
void PanelInterface::clearMains() { panel().ClearMains(); }
void PanelInterface::clearTest() { panel().ClearTest(); }
void PanelInterface::setConnected(bool value) { panel().Connected(value); }
void PanelInterface::setProtection(int channel, bool value) { panel().Protection(toInteger(channel), value); }
void PanelInterface::setSignal(int channel, bool value) { panel().Signal(toInteger(channel), value); }
void PanelInterface::abilitaSlave(bool abilita) { panel().AbilitaSlave(abilita); }
int PanelInterface::idDevice() const { return panel().IdDevice(); }
void PanelInterface::setIdDevice(int idDevice) { panel().IdDevice(toInteger(idDevice)); }
void PanelInterface::setVPPower(int channel, int value) { panel().VPPower(toInteger(channel), toInteger(value)); }
void PanelInterface::setVPAux(int channel, int value) { panel().VPAux(toInteger(channel), toInteger(value)); }
void PanelInterface::setClock(int channel, bool value) { panel().Clock(toInteger(channel), value); }
void PanelInterface::setReady(int channel, bool value) { panel().Ready(toInteger(channel), value); }
void PanelInterface::setVNPower(int channel, int value) { panel().VNPower(toInteger(channel), toInteger(value)); }
void PanelInterface::setVNAux(int channel, int value) { panel().VNAux(toInteger(channel), toInteger(value)); }
bool PanelInterface::isPowerOn() const { return bool(panel().PowerOn()); }
void PanelInterface::setMainPresence(bool status) { panel().MainPresence(status); }
void PanelInterface::setPowerOn(bool status) { panel().PowerOn(status); }
void PanelInterface::setVolume(int channel, int value) { panel().Volume(toInteger(channel), toInteger(value)); }
void PanelInterface::setVolumeSlider(int channel, int value) { panel().VolumeSlider(toInteger(channel), toInteger(value)); }
bool PanelInterface::isVolumeSliderButtonDown(int channel) const { return bool(panel().VolumeSliderButtonDown(toInteger(channel))); }
void PanelInterface::setTemperature(int channel, int value) { panel().Temperature(toInteger(channel), toInteger(value)); }
void PanelInterface::setTimerVirtualTemp12(bool bln) { panel().TimerVirtualTemp12(bln); }
void PanelInterface::setTimerVirtualTemp34(bool bln) { panel().TimerVirtualTemp34(bln); }
void PanelInterface::disegnaAssi(int nCanale) { panel().DisegnaAssi(toInteger(nCanale)); }
void PanelInterface::disegnaFormaDOnda(int numCanale, const QList<short>& samples) { panel().DisegnaFormaDOnda(toInteger(numCanale), toArray(samples)); }
void PanelInterface::setMute(int channel, bool value) { panel().Mute(toInteger(channel), value); }
bool PanelInterface::isMute(int channel) const { return bool(panel().Mute(toInteger(channel))); }
// NOLINTEND(readability-make-member-function-const)

}  // namespace Orvo::Window
