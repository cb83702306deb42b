#pragma once

#include <algorithm>
#include <cstdint>
#include <deque>
#include <utility>
#include <variant>
#include <vector>

#include "Simulator/figures.h"
#include "Simulator/message.h"

namespace Orvo::Manager {

/// The requests that the amplifier has yet to answer, in the order in which they were sent. Each
/// has a time by which its answer is due, so that nobody waits for ever for what the link lost.
class AwaitedRequests {
public:
    /// A later volume for a channel replaces an earlier one.
    void add(Simulator::Milliseconds now, Simulator::SentRequest sent);

    template <class Kind>
    [[nodiscard]] bool has() const {
        return std::any_of(waits_.begin(), waits_.end(), [](const Wait& wait) {
            return std::holds_alternative<Kind>(wait.second.request);
        });
    }

    /// Those up to this number. As the link keeps the order, no request before an answered one will
    /// be answered any more.
    std::vector<Simulator::SentRequest> takeUpTo(std::uint32_t number);
    std::vector<Simulator::SentRequest> takeOverdue(Simulator::Milliseconds now);
    std::vector<Simulator::SentRequest> takeAll();

private:
    using Wait = std::pair<Simulator::Milliseconds, Simulator::SentRequest>;

    template <class Condition>
    std::vector<Simulator::SentRequest> takeWhile(const Condition& holds);

    std::deque<Wait> waits_;
};

}  // namespace Orvo::Manager
