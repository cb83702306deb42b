#pragma once

#include <bitset>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>

#include "Simulator/amplifier.h"
#include "Simulator/delay_line.h"
#include "Simulator/fault.h"
#include "Simulator/message.h"

namespace Orvo::Simulator {

/// The serial link, and whatever amplifier is at its other end: one of a rack, by its id. Those
/// that nobody talks to stand still.
class SimulatedLink {
public:
    SimulatedLink(Integer id, std::uint32_t seed, PowerAtStart power);

    /// Lets `kStep` pass.
    void step();

    /// Sends a request on its way. The number of the request, which rises from 1.
    std::uint32_t send(Request request);
    /// Hands over the messages that have arrived.
    void receive(const std::function<void(const Message&)>& receiver);

    /// Talks to another amplifier from now on. What was on its way is lost.
    void select(Integer id);

    void set(Fault fault, bool isOn);
    [[nodiscard]] bool has(Fault fault) const { return faults_.test(indexOf(fault)); }

private:
    Amplifier& amplifier();
    [[nodiscard]] bool isUp() const;
    void restart();
    void obey(const SentRequest& sent);
    void reply(Content content);
    void replyStatus(std::optional<std::uint32_t> answered);

    std::uint32_t seed_;
    PowerAtStart power_;
    std::map<Integer, Amplifier> rack_;
    Integer id_;
    std::bitset<kFaultCount> faults_;
    Milliseconds now_{0};
    Milliseconds upAt_ = LinkFigures::kStartUp;
    DelayLine<SentRequest> toAmplifier_{LinkFigures::kLatency};
    DelayLine<Message> toHost_{LinkFigures::kLatency};
    std::uint32_t sent_ = 0;
};

}  // namespace Orvo::Simulator
