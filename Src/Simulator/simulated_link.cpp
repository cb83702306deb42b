#include "Simulator/simulated_link.h"

#include <utility>
#include <variant>

namespace Orvo::Simulator {

using namespace LinkFigures;

SimulatedLink::SimulatedLink(Integer id, std::uint32_t seed, PowerAtStart power)
    : seed_(seed), power_(power), id_(id) {}

Amplifier& SimulatedLink::amplifier() {
    const auto seed = seed_ + static_cast<std::uint32_t>(id_ - 1) * 1000;
    return rack_.try_emplace(id_, seed, power_).first->second;
}

void SimulatedLink::step() {
    now_ += kStep;
    toAmplifier_.deliver(now_, [this](const SentRequest& sent) { obey(sent); });
    amplifier().step();
    if (now_ % kStatusInterval == Milliseconds(0)) replyStatus(std::nullopt);
    if (now_ % kFrameInterval != Milliseconds(0)) return;
    for (ScopeFrame& frame : amplifier().scopeFrames()) reply(std::move(frame));
}

std::uint32_t SimulatedLink::send(Request request) {
    ++sent_;
    if (isUp()) toAmplifier_.put(now_, {sent_, std::move(request)});
    return sent_;
}

void SimulatedLink::receive(const std::function<void(const Message&)>& receiver) {
    toHost_.deliver(now_, receiver);
}

void SimulatedLink::select(Integer id) {
    id_ = id;
    restart();
    for (const FaultRow& row : kFaults) amplifier().set(row.fault, has(row.fault));
}

void SimulatedLink::set(Fault fault, bool isOn) {
    if (has(fault) == isOn) return;
    faults_.set(indexOf(fault), isOn);
    amplifier().set(fault, isOn);
    if (fault == Fault::linkLoss) restart();
}

bool SimulatedLink::isUp() const { return !has(Fault::linkLoss) && now_ >= upAt_; }

void SimulatedLink::restart() {
    toAmplifier_.cut();
    toHost_.cut();
    upAt_ = now_ + kStartUp;
}

void SimulatedLink::obey(const SentRequest& sent) {
    amplifier().obey(sent.request);
    if (std::holds_alternative<AskInternalData>(sent.request)) {
        reply(InternalData{amplifier().internalData()});
    }
    replyStatus(sent.number);
}

void SimulatedLink::replyStatus(std::optional<std::uint32_t> answered) {
    reply(Status{amplifier().readings(), answered});
}

void SimulatedLink::reply(Content content) {
    if (isUp()) toHost_.put(now_, {std::move(content), !has(Fault::garbledReplies)});
}

}  // namespace Orvo::Simulator
