#include "Manager/Host/simulated_host.h"

#include <algorithm>
#include <string>
#include <utility>
#include <variant>

#include "Manager/Host/request_text.h"
#include "Orvo/values/text.h"

namespace Orvo::Manager {

using namespace Simulator;
using namespace LinkFigures;

SimulatedHost::SimulatedHost(MarvaneAssistant& panel, std::uint32_t seed, PowerAtStart power,
                             HostClock clock)
    : panel_(panel),
      seed_(seed),
      link_(panel.IdDevice(), seed, power),
      mirror_(panel),
      sliders_(panel,
               [this](Integer channel, Integer asked, Integer confirmed) {
                   tell("Channel " + std::to_string(channel) + ": " + std::to_string(confirmed) +
                        " dB instead of " + std::to_string(asked) + " dB");
               }),
      quickTest_(panel),
      log_(panel, std::move(clock)),
      connection_(panel.connect(*this)) {
    disconnect();
}

std::string SimulatedHost::name() const {
    return "Simulated amplifier (seed " + std::to_string(seed_) + ")";
}

void SimulatedHost::advance(Milliseconds elapsed) {
    unspent_ += std::min(elapsed, kLongestAdvance);
    for (; unspent_ >= kStep; unspent_ -= kStep) step();
}

void SimulatedHost::step() {
    now_ += kStep;
    link_.step();
    link_.receive([this](const Message& message) { receive(message); });
    noticeSilence();
    giveUp(awaited_.takeOverdue(now_));
    if (const auto result = quickTest_.step(now_, status_.readings)) {
        tell("Quick test: " + std::to_string(result->passed) + " of " +
             std::to_string(result->rows) + " passed");
    }
    sliders_.settle();
}

// A person acts upon what the lamp shows, so that is what is to change. The power buttons have
// flipped by themselves and must hear in any case what came of it.
void SimulatedHost::OnOff() {
    const bool isOn = bool(panel_.PowerOn());
    if (!ask(SwitchPower{!isOn})) panel_.PowerOn(isOn);
}

void SimulatedHost::Mute(Integer& intChannel) {
    ask(SetMute{intChannel, !bool(panel_.Mute(intChannel))});
}

void SimulatedHost::DownLoad() { ask(AskInternalData{}); }

void SimulatedHost::VolumeChange(Integer& intChannel, Integer& intVolume) {
    // Without a connection, one word will do for all the moves of a drag.
    const bool isToBeAsked = isConnected_ || !sliders_.isAway(intChannel);
    sliders_.moved(intChannel, intVolume);
    if (isToBeAsked && ask(SetVolume{intChannel, intVolume})) sliders_.asked(intChannel);
}

// Not awaited: the panel repeats it as long as the test lasts.
void SimulatedHost::SetTemp(Integer& intChannel, Integer& intValue) {
    if (!isConnected_) return;
    const SetVirtualTemperature request{intChannel, intValue};
    link_.send(request);
    follow(thermalTests_.at(std::size_t(intChannel - 1)), request);
}

// A slider that is on its way is not worth a line for each step.
void SimulatedHost::follow(ThermalTest& test, const SetVirtualTemperature& request) {
    const bool isSteady = std::exchange(test.asked, request.degrees) == request.degrees;
    if (!isSteady && request.degrees != 0) return;
    if (std::exchange(test.told, request.degrees) != request.degrees) tell(describe(request));
}

void SimulatedHost::WaveForm(Integer& intNChannel, Integer& intTypeWaveForm, Integer& intPosNeg) {
    if (intTypeWaveForm < 0 || intTypeWaveForm >= kSignalCount) return;
    ask(StartGenerator{intNChannel, static_cast<Signal>(intTypeWaveForm),
                       static_cast<Input>(intPosNeg)});
}

void SimulatedHost::GeneralInformations(Integer& /*intIdDevice*/, String& strInformations,
                                        String& strSnAmp, String& strSnCard) {
    const Information information{toUtf8(strInformations), toUtf8(strSnAmp), toUtf8(strSnCard)};
    if (ask(SetInformation{information})) ask(AskInternalData{});
}

void SimulatedHost::ChangeAmpId(Integer& intIdDevice) {
    disconnect();
    mirror_.forget();
    status_ = {};
    link_.select(intIdDevice);
    tell("Amplifier " + std::to_string(intIdDevice));
}

void SimulatedHost::runQuickTest() {
    if (!isConnected_) return tell("Not connected");
    quickTest_.begin(now_);
}

bool SimulatedHost::ask(const Request& request) {
    if (isConnected_) {
        awaited_.add(now_, {link_.send(request), request});
    } else {
        tell("Not connected");
    }
    return isConnected_;
}

// The link keeps the order, so what was asked before and hasn't been answered is lost.
void SimulatedHost::hearAnswer(std::uint32_t number) {
    giveUp(awaited_.takeUpTo(number - 1));
    for (const SentRequest& sent : awaited_.takeUpTo(number)) confirm(sent.request);
}

void SimulatedHost::confirm(const Request& request) {
    if (std::holds_alternative<SwitchPower>(request)) mirror_.repeat(Item::power);
    if (const auto* volume = std::get_if<SetVolume>(&request)) sliders_.ended(volume->channel);
    if (std::holds_alternative<StartGenerator>(request)) tell(describe(request));
}

void SimulatedHost::giveUp(const std::vector<SentRequest>& lost) {
    for (const SentRequest& sent : lost) giveUp(sent.request);
    if (!lost.empty()) showStatus();
}

void SimulatedHost::giveUp(const Request& request) {
    if (std::holds_alternative<AskInternalData>(request) && isConnected_) {
        if (!awaited_.has<AskInternalData>()) ask(request);
        return;
    }
    tell("No answer: " + describe(request));
    if (std::holds_alternative<SwitchPower>(request)) panel_.PowerOn(panel_.PowerOn());
    if (const auto* volume = std::get_if<SetVolume>(&request)) sliders_.ended(volume->channel);
}

void SimulatedHost::receive(const Message& message) {
    lastSound_ = now_;
    understand(message.isIntact);
    if (!message.isIntact) return;
    lastWord_ = now_;
    if (!isConnected_) connect();
    std::visit([this](const auto& content) { take(content); }, message.content);
}

void SimulatedHost::understand(bool isIntact) {
    if (isUnderstood_ == isIntact) return;
    isUnderstood_ = isIntact;
    tell(isIntact ? "Replies can be read again" : "Garbled reply");
}

void SimulatedHost::take(const Status& status) {
    status_ = status;
    if (status.answered) hearAnswer(*status.answered);
    showStatus();
}

void SimulatedHost::showStatus() {
    for (const Reading& reading : status_.readings) {
        if (reading.item == Item::volume) sliders_.confirmed(reading.index, reading.value);
        // What was on its way before the request would flip the power buttons to and fro.
        if (reading.item != Item::power || !awaited_.has<SwitchPower>()) show(reading);
    }
}

// A second pair that comes or goes changes what the panel's amplifier-wide mute lamp counts, and
// the panel counts at each word about a mute state.
void SimulatedHost::show(const Reading& reading) {
    const auto effect = mirror_.show(reading);
    if (effect == PanelMirror::Effect::none) return;
    if (effect == PanelMirror::Effect::changed) log_.tell(now_, reading);
    if (reading.item != Item::secondPair) return;
    mirror_.repeat(Item::mute);
    if (reading.value == 0) mirror_.clearSecondPair();
}

void SimulatedHost::take(const InternalData& data) {
    tell("Internal data");
    for (const std::string& line : data.lines) log_.add(line);
}

void SimulatedHost::connect() {
    isConnected_ = true;
    mirror_.repeatAll();
    sliders_.forgetAll();
    panel_.Connected(true);
    panel_.TimerVirtualTemp12(true);
    panel_.TimerVirtualTemp34(true);
    tell("Connected");
}

// What the panel shows of the amplifier stays, as the last that is known of it.
void SimulatedHost::disconnect() {
    isConnected_ = false;
    if (quickTest_.isRunning()) tell("Quick test broken off");
    quickTest_.abandon();
    giveUp(awaited_.takeAll());
    panel_.Connected(false);
    panel_.TimerVirtualTemp12(false);
    panel_.TimerVirtualTemp34(false);
}

void SimulatedHost::noticeSilence() {
    if (!isConnected_ || now_ - lastSound_ <= kSilenceIsLoss) return;
    tell("Link lost");
    disconnect();
}

}  // namespace Orvo::Manager
