#pragma once

#include <deque>
#include <utility>

#include "Simulator/figures.h"

namespace Orvo::Simulator {

/// One direction of the link: what goes in comes out in order, a while later.
template <class Item>
class DelayLine {
public:
    explicit DelayLine(Milliseconds latency) : latency_(latency) {}

    void put(Milliseconds now, Item item) { items_.emplace_back(now + latency_, std::move(item)); }

    /// Hands over what has arrived by now.
    template <class Receiver>
    void deliver(Milliseconds now, const Receiver& receiver) {
        while (!items_.empty() && items_.front().first <= now) {
            const Item arrived = std::move(items_.front().second);
            items_.pop_front();
            receiver(arrived);
        }
    }

    /// Loses what is on its way.
    void cut() { items_.clear(); }

private:
    Milliseconds latency_;
    std::deque<std::pair<Milliseconds, Item>> items_;
};

}  // namespace Orvo::Simulator
