#include "Orvo/core/event_hub.h"

#include <array>
#include <exception>
#include <new>
#include <utility>

namespace Orvo {
namespace {

using Events = MarvaneAssistantEvents;

template <class... Arguments>
void tellLateBound(const LateBoundSink& sink, Long dispatchId, const Arguments&... arguments) {
    std::array<Value, sizeof...(Arguments)> own{arguments...};
    sink(dispatchId, own);
}

}  // namespace

Error currentError() try {
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
} catch (const std::bad_alloc&) {
    return Errors::outOfMemory();
}

Connection EventHub::connect(MarvaneAssistantEvents& sink) { return sinks_.add({.typed = &sink}); }

Connection EventHub::connect(LateBoundSink sink) {
    return sinks_.add({.lateBound = std::move(sink)});
}

void EventHub::close() {
    isOpen_ = false;
    sinks_.disconnectAll();
}

template <auto kFunction, class... Arguments>
inline void EventHub::raise(const Event& event, const Arguments&... arguments) {
    sinks_.tell([&](const Sink& sink) {
        try {
            if (sink.typed != nullptr) {
                const auto deliver = [&](Arguments... own) { (sink.typed->*kFunction)(own...); };
                return deliver(arguments...);
            }
            tellLateBound(sink.lateBound, event.dispatchId, arguments...);
        } catch (...) {
            onError_(currentError());
        }
    });
    if (!isOpen_) throw Released{};
}

void EventHub::OnOff() { raise<&Events::OnOff>(eventNamed("OnOff")); }
void EventHub::Mute(Integer& intChannel) { raise<&Events::Mute>(eventNamed("Mute"), intChannel); }
void EventHub::DownLoad() { raise<&Events::DownLoad>(eventNamed("DownLoad")); }
void EventHub::VolumeChange(Integer& intChannel, Integer& intVolume) {
    raise<&Events::VolumeChange>(eventNamed("VolumeChange"), intChannel, intVolume);
}
void EventHub::SetTemp(Integer& intChannel, Integer& intValue) {
    raise<&Events::SetTemp>(eventNamed("SetTemp"), intChannel, intValue);
}
void EventHub::WaveForm(Integer& intNChannel, Integer& intTypeWaveForm, Integer& intPosNeg) {
    raise<&Events::WaveForm>(eventNamed("WaveForm"), intNChannel, intTypeWaveForm, intPosNeg);
}
void EventHub::GeneralInformations(Integer& intIdDevice, String& strInformations, String& strSnAmp,
                                   String& strSnCard) {
    raise<&Events::GeneralInformations>(eventNamed("GeneralInformations"), intIdDevice,
                                        strInformations, strSnAmp, strSnCard);
}
void EventHub::ChangeAmpId(Integer& intIdDevice) {
    raise<&Events::ChangeAmpId>(eventNamed("ChangeAmpId"), intIdDevice);
}

}  // namespace Orvo
