#include "Orvo/core/marvane_assistant.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <new>
#include <type_traits>
#include <utility>

#include "Orvo/core/panel.h"

namespace Orvo {
namespace {

template <std::size_t kSize>
struct Name {
    // From the text itself. NOLINTNEXTLINE(*-explicit-constructor,*-avoid-c-arrays)
    consteval Name(const char (&literal)[kSize]) { std::copy_n(literal, kSize, text.begin()); }
    std::array<char, kSize> text{};
};

// Numbers by value, so that `call` needn't keep them in memory for `callAloud`.
template <class Argument>
using Passed =
    std::conditional_t<std::is_trivially_copyable_v<Argument>, Argument, const Argument&>;

// Whatever a host calls goes through here: on the right thread, with the panel kept alive until it
// returns, and with error 7 when there is no memory.
template <class Act>
auto onItsThread(Panel& panel, const Act& act) try {
    panel.checkThread();
    const UnderWay underWay(panel);
    return act(panel);
} catch (const std::bad_alloc&) {
    throw Errors::outOfMemory();
}

// Carries a call out and tells the listeners of it. Apart from `call`, which it would slow down by
// half with all that it keeps at hand.
template <class... Arguments, class Act>
[[gnu::noinline]] auto callAloud(Panel& panel, const Member& member, Act act,
                                 Arguments... arguments) {
    const std::array<Value, sizeof...(Arguments)> values{arguments...};
    auto& listeners = panel.callListeners;
    try {
        listeners.tell([&](CallListener* listener) { listener->called(member, values); });
        if constexpr (std::is_void_v<decltype(act(panel, arguments...))>) {
            act(panel, arguments...);
            listeners.tell([&](CallListener* listener) { listener->returned(member, {}); });
        } else {
            auto result = act(panel, arguments...);
            listeners.tell([&](CallListener* listener) { listener->returned(member, result); });
            return result;
        }
    } catch (...) {
        const Error error = currentError();
        listeners.tell([&](CallListener* listener) { listener->failed(member, error); });
        throw;
    }
}

// A call of a member. The subject's function takes `kFirst` before the member's own arguments.
template <Name kName, auto kSubject, auto kFunction, auto... kFirst, class... Arguments>
auto call(const std::unique_ptr<Panel>& called, const Arguments&... arguments) {
    static constexpr const Member& kMember = memberNamed<Arguments...>(kName.text.data());
    return onItsThread(*called, [&](Panel& panel) {
        const auto act = [](Panel& subjects, const Arguments&... own) {
            return std::invoke(kFunction, subjects.*kSubject, kFirst..., own...);
        };
        if (panel.callListeners.isEmpty()) return act(panel, arguments...);
        return callAloud<Passed<Arguments>...>(panel, kMember, act, arguments...);
    });
}

String trimmed(const PortDiscovery& /*discovery*/, const String& text) {
    return PortDiscovery::trimmed(text);
}

}  // namespace

MarvaneAssistant::MarvaneAssistant(std::shared_ptr<Widgets::WidgetTree> runtime,
                                   Platform platform) try
    : panel_(std::make_unique<Panel>(std::move(runtime), std::move(platform))) {
    try {
        panel_->create();
    } catch (...) {
        Panel::release(std::move(panel_));
        throw;
    }
} catch (const std::bad_alloc&) {
    throw Errors::outOfMemory();
}

MarvaneAssistant::~MarvaneAssistant() { Panel::release(std::move(panel_)); }

Connection MarvaneAssistant::connect(MarvaneAssistantEvents& sink) {
    return onItsThread(*panel_, [&](Panel& panel) { return panel.events.connect(sink); });
}

Connection MarvaneAssistant::connect(LateBoundSink sink) {
    return onItsThread(*panel_,
                       [&](Panel& panel) { return panel.events.connect(std::move(sink)); });
}

Connection MarvaneAssistant::listen(CallListener& listener) {
    return onItsThread(*panel_, [&](Panel& panel) { return panel.callListeners.add(&listener); });
}

void MarvaneAssistant::setErrorHandler(ErrorHandler handler) {
    onItsThread(*panel_, [&](Panel& panel) { panel.setErrorHandler(std::move(handler)); });
}

void MarvaneAssistant::swap(MarvaneAssistant& other) noexcept { panel_.swap(other.panel_); }

InvokeResult MarvaneAssistant::invoke(Long dispatchId, MemberKind kind,
                                      std::span<const Value> arguments) {
    try {
        panel_->checkThread();
        return {.value = findMember(dispatchId, kind).call(*this, arguments)};
    } catch (...) {
        return {.error = currentError()};
    }
}

String MarvaneAssistant::TrimStr(const String& strName) {
    return call<"TrimStr", &Panel::portDiscovery, trimmed>(panel_, strName);
}

String MarvaneAssistant::LPSTRtoSTRING(Long lngPointer) {
    return call<"LPSTRtoSTRING", &Panel::portDiscovery, &PortDiscovery::textAt>(panel_, lngPointer);
}

Long MarvaneAssistant::GetAvailablePorts(const String& ServerName) {
    return call<"GetAvailablePorts", &Panel::portDiscovery, &PortDiscovery::discover>(panel_,
                                                                                      ServerName);
}

void MarvaneAssistant::CancellaTesto() {
    call<"CancellaTesto", &Panel::messageLog, &MessageLog::clear>(panel_);
}

void MarvaneAssistant::AggiugiTesto(const String& strTesto) {
    call<"AggiugiTesto", &Panel::messageLog, &MessageLog::add>(panel_, strTesto);
}

void MarvaneAssistant::chkTest(Integer Ncheck, Boolean blnValue) {
    call<"chkTest", &Panel::quickTest, &QuickTest::setPassed>(panel_, Ncheck, blnValue);
}

Boolean MarvaneAssistant::chkTest(Integer Ncheck) {
    return call<"chkTest", &Panel::quickTest, &QuickTest::hasPassed>(panel_, Ncheck);
}

void MarvaneAssistant::ClearMains() {
    call<"ClearMains", &Panel::quickTest, &QuickTest::clearMains>(panel_);
}

void MarvaneAssistant::ClearTest() {
    call<"ClearTest", &Panel::quickTest, &QuickTest::clearMeasurements>(panel_);
}

void MarvaneAssistant::Connected(Boolean blnValue) {
    call<"Connected", &Panel::powerState, &PowerState::setConnected>(panel_, blnValue);
}

void MarvaneAssistant::Protection(Integer intChannel, Boolean blnValue) {
    call<"Protection", &Panel::statusLamps, &StatusLamps::setProtection>(panel_, intChannel,
                                                                         blnValue);
}

void MarvaneAssistant::Signal(Integer intChannel, Boolean blnValue) {
    call<"Signal", &Panel::statusLamps, &StatusLamps::setChannel, &Layout::Channel::signalLamp>(
        panel_, intChannel, blnValue);
}

void MarvaneAssistant::AbilitaSlave(Boolean blnAbilita) {
    call<"AbilitaSlave", &Panel::powerState, &PowerState::enableSecondPair>(panel_, blnAbilita);
}

Integer MarvaneAssistant::IdDevice() {
    return call<"IdDevice", &Panel::amplifierId, &AmplifierId::get>(panel_);
}

void MarvaneAssistant::IdDevice(Integer intIdDevice) {
    call<"IdDevice", &Panel::amplifierId, &AmplifierId::set>(panel_, intIdDevice);
}

void MarvaneAssistant::VPPower(Integer intChannel, Integer intValue) {
    call<"VPPower", &Panel::railReadouts, &RailReadouts::set, &Layout::Pair::positivePower>(
        panel_, intChannel, intValue);
}

void MarvaneAssistant::VPAux(Integer intChannel, Integer intValue) {
    call<"VPAux", &Panel::railReadouts, &RailReadouts::set, &Layout::Pair::positiveAux>(
        panel_, intChannel, intValue);
}

void MarvaneAssistant::Clock(Integer intChannel, Boolean blnValue) {
    call<"Clock", &Panel::statusLamps, &StatusLamps::setPair, &Layout::Pair::clockLamp>(
        panel_, intChannel, blnValue);
}

void MarvaneAssistant::Ready(Integer intChannel, Boolean blnValue) {
    call<"Ready", &Panel::statusLamps, &StatusLamps::setPair, &Layout::Pair::readyLamp>(
        panel_, intChannel, blnValue);
}

void MarvaneAssistant::VNPower(Integer intChannel, Integer intValue) {
    call<"VNPower", &Panel::railReadouts, &RailReadouts::set, &Layout::Pair::negativePower>(
        panel_, intChannel, intValue);
}

void MarvaneAssistant::VNAux(Integer intChannel, Integer intValue) {
    call<"VNAux", &Panel::railReadouts, &RailReadouts::set, &Layout::Pair::negativeAux>(
        panel_, intChannel, intValue);
}

Boolean MarvaneAssistant::PowerOn() {
    return call<"PowerOn", &Panel::powerState, &PowerState::power>(panel_);
}

void MarvaneAssistant::MainPresence(Boolean Status) {
    call<"MainPresence", &Panel::powerState, &PowerState::setMains>(panel_, Status);
}

void MarvaneAssistant::PowerOn(Boolean Status) {
    call<"PowerOn", &Panel::powerState, &PowerState::setPower>(panel_, Status);
}

void MarvaneAssistant::Volume(Integer intChannel, Integer intValue) {
    call<"Volume", &Panel::volume, &Volume::show>(panel_, intChannel, intValue);
}

void MarvaneAssistant::VolumeSlider(Integer intChannel, Integer intValue) {
    call<"VolumeSlider", &Panel::volume, &Volume::moveSlider>(panel_, intChannel, intValue);
}

Boolean MarvaneAssistant::VolumeSliderButtonDown(Integer intChannel) {
    return call<"VolumeSliderButtonDown", &Panel::volume, &Volume::isHeld>(panel_, intChannel);
}

void MarvaneAssistant::Temperature(Integer intChannel, Integer intValue) {
    call<"Temperature", &Panel::temperature, &Temperature::show>(panel_, intChannel, intValue);
}

void MarvaneAssistant::TimerVirtualTemp12(Boolean bln) {
    call<"TimerVirtualTemp12", &Panel::temperature, &Temperature::runTimer, Integer{1}>(panel_,
                                                                                        bln);
}

void MarvaneAssistant::TimerVirtualTemp34(Boolean bln) {
    call<"TimerVirtualTemp34", &Panel::temperature, &Temperature::runTimer, Integer{2}>(panel_,
                                                                                        bln);
}

void MarvaneAssistant::DisegnaAssi(Integer intNCanale) {
    call<"DisegnaAssi", &Panel::oscilloscope, &Oscilloscope::drawAxes>(panel_, intNCanale);
}

void MarvaneAssistant::DisegnaFormaDOnda(Integer intNumCanale, const IntegerArray& arrSamples) {
    call<"DisegnaFormaDOnda", &Panel::oscilloscope, &Oscilloscope::drawTrace>(panel_, intNumCanale,
                                                                              arrSamples);
}

void MarvaneAssistant::Mute(Integer intChannel, Boolean blnValue) {
    call<"Mute", &Panel::muteState, &MuteState::set>(panel_, intChannel, blnValue);
}

Boolean MarvaneAssistant::Mute(Integer intChannel) {
    return call<"Mute", &Panel::muteState, &MuteState::get>(panel_, intChannel);
}

void MarvaneAssistant::ReadOnly(Boolean blnValue) {
    call<"ReadOnly", &Panel::readOnlyMode, &ReadOnlyMode::set>(panel_, blnValue);
}

Boolean MarvaneAssistant::ReadOnly() {
    return call<"ReadOnly", &Panel::readOnlyMode, &ReadOnlyMode::get>(panel_);
}

}  // namespace Orvo
