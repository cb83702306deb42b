#include "Orvo/core/marvane_assistant.h"

#include <utility>

#include "Orvo/core/panel.h"

namespace Orvo {

MarvaneAssistant::MarvaneAssistant(std::shared_ptr<Widgets::WidgetTree> runtime, Platform platform)
    : panel_(std::make_shared<Panel>(std::move(runtime), std::move(platform))) {
    try {
        panel_->create();
    } catch (...) {
        panel_->release();
        throw;
    }
}

MarvaneAssistant::~MarvaneAssistant() { panel_->release(); }

std::shared_ptr<Panel> MarvaneAssistant::enter() const {
    panel_->checkThread();
    return panel_;
}

Connection MarvaneAssistant::connect(MarvaneAssistantEvents& sink) {
    return enter()->events.connect(sink);
}

Connection MarvaneAssistant::connect(LateBoundSink sink) {
    return enter()->events.connect(std::move(sink));
}

void MarvaneAssistant::setErrorHandler(ErrorHandler handler) {
    enter()->setErrorHandler(std::move(handler));
}

InvokeResult MarvaneAssistant::invoke(Long dispatchId, MemberKind kind,
                                      std::span<const Value> arguments) {
    try {
        const auto alive = enter();
        return invokeOn(*this, dispatchId, kind, arguments);
    } catch (const Error& error) {
        return {.error = error};
    }
}

String MarvaneAssistant::TrimStr(const String& strName) {
    const auto alive = enter();
    return PortDiscovery::trimmed(strName);
}

String MarvaneAssistant::LPSTRtoSTRING(Long lngPointer) {
    return enter()->portDiscovery.textAt(lngPointer);
}

Long MarvaneAssistant::GetAvailablePorts(const String& ServerName) {
    return enter()->portDiscovery.discover(ServerName);
}

void MarvaneAssistant::CancellaTesto() { enter()->messageLog.clear(); }

void MarvaneAssistant::AggiugiTesto(const String& strTesto) { enter()->messageLog.add(strTesto); }

void MarvaneAssistant::chkTest(Integer Ncheck, Boolean blnValue) {
    enter()->quickTest.setPassed(Ncheck, blnValue);
}

Boolean MarvaneAssistant::chkTest(Integer Ncheck) { return enter()->quickTest.hasPassed(Ncheck); }

void MarvaneAssistant::ClearMains() { enter()->quickTest.clearMains(); }

void MarvaneAssistant::ClearTest() { enter()->quickTest.clearMeasurements(); }

void MarvaneAssistant::Connected(Boolean blnValue) { enter()->powerState.setConnected(blnValue); }

void MarvaneAssistant::Protection(Integer intChannel, Boolean blnValue) {
    enter()->statusLamps.setProtection(intChannel, blnValue);
}

void MarvaneAssistant::Signal(Integer intChannel, Boolean blnValue) {
    enter()->statusLamps.set(&Layout::Channel::signalLamp, intChannel, blnValue);
}

void MarvaneAssistant::AbilitaSlave(Boolean blnAbilita) {
    enter()->powerState.enableSecondPair(blnAbilita);
}

Integer MarvaneAssistant::IdDevice() { return enter()->amplifierId.get(); }

void MarvaneAssistant::IdDevice(Integer intIdDevice) { enter()->amplifierId.set(intIdDevice); }

void MarvaneAssistant::VPPower(Integer intChannel, Integer intValue) {
    enter()->railReadouts.set(&Layout::Pair::positivePower, intChannel, intValue);
}

void MarvaneAssistant::VPAux(Integer intChannel, Integer intValue) {
    enter()->railReadouts.set(&Layout::Pair::positiveAux, intChannel, intValue);
}

void MarvaneAssistant::Clock(Integer intChannel, Boolean blnValue) {
    enter()->statusLamps.set(&Layout::Pair::clockLamp, intChannel, blnValue);
}

void MarvaneAssistant::Ready(Integer intChannel, Boolean blnValue) {
    enter()->statusLamps.set(&Layout::Pair::readyLamp, intChannel, blnValue);
}

void MarvaneAssistant::VNPower(Integer intChannel, Integer intValue) {
    enter()->railReadouts.set(&Layout::Pair::negativePower, intChannel, intValue);
}

void MarvaneAssistant::VNAux(Integer intChannel, Integer intValue) {
    enter()->railReadouts.set(&Layout::Pair::negativeAux, intChannel, intValue);
}

Boolean MarvaneAssistant::PowerOn() { return enter()->powerState.power(); }

void MarvaneAssistant::MainPresence(Boolean Status) { enter()->powerState.setMains(Status); }

void MarvaneAssistant::PowerOn(Boolean Status) { enter()->powerState.setPower(Status); }

void MarvaneAssistant::Volume(Integer intChannel, Integer intValue) {
    enter()->volume.show(intChannel, intValue);
}

void MarvaneAssistant::VolumeSlider(Integer intChannel, Integer intValue) {
    enter()->volume.moveSlider(intChannel, intValue);
}

Boolean MarvaneAssistant::VolumeSliderButtonDown(Integer intChannel) {
    return enter()->volume.isHeld(intChannel);
}

void MarvaneAssistant::Temperature(Integer intChannel, Integer intValue) {
    enter()->temperature.show(intChannel, intValue);
}

void MarvaneAssistant::TimerVirtualTemp12(Boolean bln) { enter()->temperature.runTimer(1, bln); }

void MarvaneAssistant::TimerVirtualTemp34(Boolean bln) { enter()->temperature.runTimer(2, bln); }

void MarvaneAssistant::DisegnaAssi(Integer intNCanale) {
    enter()->oscilloscope.drawAxes(intNCanale);
}

void MarvaneAssistant::DisegnaFormaDOnda(Integer intNumCanale, const IntegerArray& arrSamples) {
    enter()->oscilloscope.drawTrace(intNumCanale, arrSamples);
}

void MarvaneAssistant::Mute(Integer intChannel, Boolean blnValue) {
    enter()->muteState.set(intChannel, blnValue);
}

Boolean MarvaneAssistant::Mute(Integer intChannel) { return enter()->muteState.get(intChannel); }

void MarvaneAssistant::ReadOnly(Boolean blnValue) { enter()->readOnlyMode.set(blnValue); }

Boolean MarvaneAssistant::ReadOnly() { return enter()->readOnlyMode.get(); }

}  // namespace Orvo
