#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "Orvo/core/connection.h"

namespace Orvo {

/// Those who are told something, in the order in which they were connected. They may come and go
/// meanwhile: one that is gone isn't told any more, one that is new is told the next time.
template <class Receiver>
class Receivers {
public:
    Receivers() = default;
    Receivers(const Receivers&) = delete;
    Receivers& operator=(const Receivers&) = delete;
    ~Receivers() { disconnectAll(); }

    Connection add(Receiver receiver) {
        links_.push_back(std::make_shared<Link>(*this, std::move(receiver)));
        return Connection(links_.back());
    }

    /// The receivers themselves end with the list, or when all have been told.
    void disconnectAll() {
        for (const auto& link : links_) link->isHere = false;
        hasGone_ = true;
    }

    /// False also when the last has gone while others are told.
    [[nodiscard]] bool isEmpty() const { return links_.empty(); }

    template <class Tell>
    void tell(const Tell& tell) {
        const Telling telling(*this);
        const std::size_t count = links_.size();
        for (std::size_t i = 0; i < count; ++i) {
            Link& link = *links_[i];
            if (link.isHere) tell(link.receiver);
        }
    }

private:
    struct Link final : Connection::Link {
        Link(Receivers& all, Receiver itself) : receivers(all), receiver(std::move(itself)) {}
        [[nodiscard]] bool isConnected() const override { return isHere; }
        void disconnect() override {
            if (std::exchange(isHere, false)) receivers.forget(*this);
        }

        Receivers& receivers;
        Receiver receiver;
        bool isHere = true;
    };

    // While anybody is told, also by way of somebody who is told, no link moves.
    class Telling {
    public:
        explicit Telling(Receivers& receivers)
            : receivers_(receivers), isWithin_(std::exchange(receivers.isTelling_, true)) {}
        Telling(const Telling&) = delete;
        Telling& operator=(const Telling&) = delete;
        ~Telling() {
            if (isWithin_) return;
            receivers_.isTelling_ = false;
            if (receivers_.hasGone_) receivers_.forgetGone();
        }

    private:
        Receivers& receivers_;
        const bool isWithin_;
    };

    void forget(const Link& gone) {
        if (isTelling_) {
            hasGone_ = true;
        } else {
            std::erase_if(links_, [&](const auto& link) { return link.get() == &gone; });
        }
    }

    // One by one: what a receiver holds ends after the list is whole again, and may end others.
    void forgetGone() {
        hasGone_ = false;
        for (;;) {
            const auto gone = std::find_if(links_.begin(), links_.end(),
                                           [](const auto& link) { return !link->isHere; });
            if (gone == links_.end()) return;
            const auto last = std::move(*gone);
            links_.erase(gone);
        }
    }

    std::vector<std::shared_ptr<Link>> links_;
    bool isTelling_ = false;
    bool hasGone_ = false;
};

}  // namespace Orvo
