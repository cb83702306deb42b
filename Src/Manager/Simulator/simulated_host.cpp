#include "Manager/Simulator/simulated_host.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "Orvo/values/indexed.h"
#include "Orvo/values/text.h"

namespace Orvo::Simulator {
namespace {

using namespace LinkFigures;

// By the panel's wave types, from 0.
constexpr std::array<std::string_view, 5> kSignalNames{"100 Hz", "1 kHz", "10 kHz", "EIAJ",
                                                       "Line in"};

}  // namespace

SimulatedHost::SimulatedHost(MarvaneAssistant& panel, std::uint32_t seed, PowerAtStart power)
    : SimulatedHost(panel, panel, seed, power) {}

SimulatedHost::SimulatedHost(MarvaneAssistant& panel, MarvaneAssistantInterface& members,
                             std::uint32_t seed, PowerAtStart power)
    : panel_(members),
      link_(members.IdDevice(), seed, power),
      mirror_(members),
      sliders_(members),
      quickTest_(members),
      log_(members),
      connection_(panel.connect(*this)) {
    disconnect();
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
    if (dataDue_ && now_ >= *dataDue_) askInternalData();
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
    powerAsked_ = ask(SwitchPower{!isOn});
    if (!powerAsked_) panel_.PowerOn(isOn);
}

void SimulatedHost::Mute(Integer& intChannel) {
    ask(SetMute{intChannel, !bool(panel_.Mute(intChannel))});
}

void SimulatedHost::DownLoad() { askInternalData(); }

void SimulatedHost::VolumeChange(Integer& intChannel, Integer& intVolume) {
    sliders_.moved(intChannel, intVolume);
    if (!isConnected_) return;
    sliders_.asked(intChannel, link_.send(SetVolume{intChannel, intVolume}));
}

void SimulatedHost::SetTemp(Integer& intChannel, Integer& intValue) {
    if (isConnected_) link_.send(SetVirtualTemperature{intChannel, intValue});
}

void SimulatedHost::WaveForm(Integer& intNChannel, Integer& intTypeWaveForm, Integer& intPosNeg) {
    const auto* name = entry(kSignalNames, intTypeWaveForm, 0);
    if (name == nullptr) return;
    const auto input = static_cast<Input>(intPosNeg);
    if (!ask(StartGenerator{intNChannel, static_cast<Signal>(intTypeWaveForm), input})) return;
    tell("Channel " + std::to_string(intNChannel) + ": " + std::string(*name) + " to the " +
         (input == Input::positive ? "positive" : "negative") + " input");
}

void SimulatedHost::GeneralInformations(Integer& /*intIdDevice*/, String& strInformations,
                                        String& strSnAmp, String& strSnCard) {
    const Information information{toUtf8(strInformations), toUtf8(strSnAmp), toUtf8(strSnCard)};
    if (ask(SetInformation{information})) askInternalData();
}

void SimulatedHost::ChangeAmpId(Integer& intIdDevice) {
    log_.emptied();
    disconnect();
    mirror_.forget();
    link_.select(intIdDevice);
    tell("Amplifier " + std::to_string(intIdDevice));
}

void SimulatedHost::runQuickTest() {
    if (isConnected_) {
        quickTest_.begin(now_);
    } else {
        tell("Not connected");
    }
}

std::optional<std::uint32_t> SimulatedHost::ask(Command command) {
    if (isConnected_) return link_.send(std::move(command));
    tell("Not connected");
    return std::nullopt;
}

void SimulatedHost::askInternalData() {
    dataDue_.reset();
    if (ask(AskInternalData{})) dataDue_ = now_ + kAnswerIsDue;
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
    if (powerAsked_ && status.answered >= *powerAsked_) {
        powerAsked_.reset();
        mirror_.repeat(Item::power);
    }
    for (const Reading& reading : status.readings) {
        if (reading.item == Item::volume) {
            sliders_.confirmed(reading.index, reading.value, status.answered);
        }
        // What was on its way before the request would flip the power buttons to and fro.
        if (reading.item != Item::power || !powerAsked_) show(reading);
    }
}

// A second pair that comes or goes changes what the panel's amplifier-wide mute lamp counts, and
// the panel counts at each word about a mute state.
void SimulatedHost::show(const Reading& reading) {
    const auto effect = mirror_.show(reading);
    if (effect == PanelMirror::Effect::none) return;
    if (reading.item == Item::secondPair) mirror_.repeat(Item::mute);
    if (effect == PanelMirror::Effect::changed) log_.tell(now_, reading);
}

void SimulatedHost::take(const Page& page) {
    dataDue_.reset();
    tell("Internal data");
    for (const std::string& line : page.lines) log_.add(line);
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
    dataDue_.reset();
    quickTest_.abandon();
    if (powerAsked_) panel_.PowerOn(panel_.PowerOn());
    powerAsked_.reset();
    sliders_.giveUp();
    panel_.Connected(false);
    panel_.TimerVirtualTemp12(false);
    panel_.TimerVirtualTemp34(false);
}

void SimulatedHost::noticeSilence() {
    if (!isConnected_ || now_ - lastSound_ <= kSilenceIsLoss) return;
    tell("Link lost");
    disconnect();
}

}  // namespace Orvo::Simulator
