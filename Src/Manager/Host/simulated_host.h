#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Manager/Host/awaited_requests.h"
#include "Manager/Host/host_log.h"
#include "Manager/Host/panel_mirror.h"
#include "Manager/Host/quick_test_run.h"
#include "Manager/Host/volume_sliders.h"
#include "Manager/Station/device.h"
#include "Orvo/core/marvane_assistant.h"
#include "Simulator/fault.h"
#include "Simulator/internal_data.h"
#include "Simulator/message.h"
#include "Simulator/simulated_link.h"

namespace Orvo::Manager {

/// A host with a simulated amplifier at the other end of its link.
///
/// It knows the panel's public interface and nothing else, and may serve as the example of how a
/// host treats it:
/// - what a person asks for goes to the amplifier, and the panel changes when the amplifier has
///   confirmed it, as does what the log says of it;
/// - only what changed is shown, and everything once more after a reconnect;
/// - a slider isn't written while a person holds it, nor while a later move is unanswered;
/// - a control that changes by itself when it is worked is put back if nothing comes of it;
/// - nothing is waited for for ever: in the end a question is asked again, but an order is given
///   up, and the log says so.
///
/// The same seed, panel and calls give the same life, which is the clock of its log unless there is
/// another. It ends before the panel does, and is used
/// on the panel's thread.
class SimulatedHost final : public Device, private MarvaneAssistantEvents {
public:
    explicit SimulatedHost(MarvaneAssistant& panel, std::uint32_t seed = 1,
                           Simulator::PowerAtStart power = Simulator::PowerAtStart::on,
                           HostClock clock = Simulator::clockText);

    [[nodiscard]] std::string name() const override;

    /// Lets time pass, ten minutes at most; what is longer is skipped. How it is divided among
    /// calls makes no difference.
    void advance(Simulator::Milliseconds elapsed) override;

    void set(Simulator::Fault fault, bool isOn) { link_.set(fault, isOn); }
    [[nodiscard]] bool has(Simulator::Fault fault) const { return link_.has(fault); }

    /// Begins the quick test, or begins it again: a row every 400 ms, by what the amplifier last
    /// reported. Without a connection there is only a line in the log, and one when the connection
    /// is lost before the last row.
    void runQuickTest();

    /// Since the last word from the amplifier that could be understood, while connected. A few
    /// tenths of a second at most when all is well.
    [[nodiscard]] std::optional<Simulator::Milliseconds> sinceLastWord() const override {
        return isConnected_ ? std::optional(now_ - lastWord_) : std::nullopt;
    }
    [[nodiscard]] std::optional<double> sampleInterval(Integer channel) const override {
        return mirror_.sampleInterval(channel);
    }
    /// How long the host has lived.
    [[nodiscard]] Simulator::Milliseconds now() const { return now_; }

private:
    // What a person asks for.
    void OnOff() override;
    void Mute(Integer& intChannel) override;
    void DownLoad() override;
    void VolumeChange(Integer& intChannel, Integer& intVolume) override;
    void SetTemp(Integer& intChannel, Integer& intValue) override;
    void WaveForm(Integer& intNChannel, Integer& intTypeWaveForm, Integer& intPosNeg) override;
    void GeneralInformations(Integer& intIdDevice, String& strInformations, String& strSnAmp,
                             String& strSnCard) override;
    void ChangeAmpId(Integer& intIdDevice) override;

    void step();
    /// Whether the request is on its way; not without a connection.
    bool ask(const Simulator::Request& request);
    void hearAnswer(std::uint32_t number);
    void confirm(const Simulator::Request& request);
    void giveUp(const std::vector<Simulator::SentRequest>& lost);
    void giveUp(const Simulator::Request& request);

    void receive(const Simulator::Message& message);
    void take(const Simulator::Status& status);
    void showStatus();
    void show(const Simulator::Reading& reading);
    void take(const Simulator::ScopeFrame& frame) { mirror_.show(frame); }
    void take(const Simulator::InternalData& data);
    void understand(bool isIntact);

    void connect();
    void disconnect();
    void noticeSilence();
    void tell(std::string_view text) { log_.tell(now_, text); }

    MarvaneAssistantInterface& panel_;
    const std::uint32_t seed_;
    Simulator::SimulatedLink link_;
    Simulator::Milliseconds now_{0};
    Simulator::Milliseconds unspent_{0};

    bool isConnected_ = false;
    bool isUnderstood_ = true;
    Simulator::Milliseconds lastSound_{0};
    Simulator::Milliseconds lastWord_{0};

    // Of a pair: what was asked for last, and what the log says of it.
    struct ThermalTest {
        Integer asked = 0;
        Integer told = 0;
    };
    void follow(ThermalTest& test, const Simulator::SetVirtualTemperature& request);

    AwaitedRequests awaited_;
    std::array<ThermalTest, 2> thermalTests_;
    Simulator::Status status_;
    PanelMirror mirror_;
    VolumeSliders sliders_;
    QuickTestRun quickTest_;
    HostLog log_;

    // Ends first, so that no event finds half a host.
    Connection connection_;
};

}  // namespace Orvo::Manager
