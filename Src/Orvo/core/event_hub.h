#pragma once

#include "Orvo/core/connection.h"
#include "Orvo/core/event_table.h"
#include "Orvo/core/events.h"
#include "Orvo/core/receivers.h"
#include "Orvo/values/error.h"

namespace Orvo {

/// Ends what the panel is doing, without an error, because the panel has been released meanwhile.
struct Released {};

/// The error currently being handled, whatever was thrown, by its number and description; error 7
/// when there is no memory to tell of another.
Error currentError();

/// Hands an event on to every sink, in the order in which they were connected; each gets copies of
/// its own. Sinks may come, go and end the panel meanwhile: one that is gone isn't called any more,
/// one that is new hears the next event.
class EventHub final : public MarvaneAssistantEvents {
public:
    explicit EventHub(const ErrorHandler& onError) : onError_(onError) {}
    ~EventHub() override { close(); }

    Connection connect(MarvaneAssistantEvents& sink);
    Connection connect(LateBoundSink sink);

    /// Disconnects every sink; an event that is being raised throws Released when it comes back.
    void close();

    void OnOff() override;
    void Mute(Integer& intChannel) override;
    void DownLoad() override;
    void VolumeChange(Integer& intChannel, Integer& intVolume) override;
    void SetTemp(Integer& intChannel, Integer& intValue) override;
    void WaveForm(Integer& intNChannel, Integer& intTypeWaveForm, Integer& intPosNeg) override;
    void GeneralInformations(Integer& intIdDevice, String& strInformations, String& strSnAmp,
                             String& strSnCard) override;
    void ChangeAmpId(Integer& intIdDevice) override;

private:
    // One of the two.
    struct Sink {
        MarvaneAssistantEvents* typed = nullptr;
        LateBoundSink lateBound{};
    };

    template <auto kFunction, class... Arguments>
    void raise(const Event& event, const Arguments&... arguments);

    const ErrorHandler& onError_;
    Receivers<Sink> sinks_;
    bool isOpen_ = true;
};

}  // namespace Orvo
