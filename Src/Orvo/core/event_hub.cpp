#include "Orvo/core/event_hub.h"

#include <exception>
#include <new>
#include <utility>

namespace Orvo {

Error currentError() {
    try {
        throw;
    } catch (const Error& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return Errors::outOfMemory();
    } catch (const std::exception& exception) {
        return Errors::hostFailure(exception.what());
    } catch (...) {
        return Errors::hostFailure("unknown exception");
    }
}

Connection EventHub::connect(MarvaneAssistantEvents& sink) {
    return sinks_.add([&sink](const Event& event, std::span<Value> arguments) {
        event.deliver(sink, arguments);
    });
}

Connection EventHub::connect(LateBoundSink sink) {
    return sinks_.add([sink = std::move(sink)](const Event& event, std::span<Value> arguments) {
        sink(event.dispatchId, arguments);
    });
}

void EventHub::close() {
    isOpen_ = false;
    sinks_.disconnectAll();
}

void EventHub::raise(const Event& event, std::initializer_list<Value> arguments) {
    sinks_.tell([&](const Deliver& sink) { deliver(sink, event, arguments); });
    if (!isOpen_) throw Released{};
}

void EventHub::deliver(const Deliver& sink, const Event& event, std::vector<Value> arguments) {
    try {
        sink(event, arguments);
    } catch (...) {
        onError_(currentError());
    }
}

void EventHub::OnOff() { raise(eventNamed("OnOff"), {}); }
void EventHub::Mute(Integer& intChannel) { raise(eventNamed("Mute"), {intChannel}); }
void EventHub::DownLoad() { raise(eventNamed("DownLoad"), {}); }
void EventHub::VolumeChange(Integer& intChannel, Integer& intVolume) {
    raise(eventNamed("VolumeChange"), {intChannel, intVolume});
}
void EventHub::SetTemp(Integer& intChannel, Integer& intValue) {
    raise(eventNamed("SetTemp"), {intChannel, intValue});
}
void EventHub::WaveForm(Integer& intNChannel, Integer& intTypeWaveForm, Integer& intPosNeg) {
    raise(eventNamed("WaveForm"), {intNChannel, intTypeWaveForm, intPosNeg});
}
void EventHub::GeneralInformations(Integer& intIdDevice, String& strInformations, String& strSnAmp,
                                   String& strSnCard) {
    raise(eventNamed("GeneralInformations"), {intIdDevice, strInformations, strSnAmp, strSnCard});
}
void EventHub::ChangeAmpId(Integer& intIdDevice) {
    raise(eventNamed("ChangeAmpId"), {intIdDevice});
}

}  // namespace Orvo
