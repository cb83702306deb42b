#pragma once

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
    Connection add(Receiver receiver) {
        links_.push_back(std::make_shared<Link>(std::move(receiver)));
        return Connection(links_.back());
    }

    void disconnectAll() {
        for (const auto& link : links_) link->isConnected = false;
    }

    /// False also when the last is gone, until others would have been told.
    [[nodiscard]] bool isEmpty() const { return links_.empty(); }

    template <class Tell>
    void tell(const Tell& tell) {
        std::erase_if(links_, [](const auto& link) { return !link->isConnected; });
        // Whoever disconnects itself ends only after it has been told.
        const auto links = links_;
        for (const auto& link : links) {
            if (link->isConnected) tell(link->receiver);
        }
    }

private:
    struct Link : Connection::Link {
        explicit Link(Receiver itself) : receiver(std::move(itself)) {}
        Receiver receiver;
    };

    std::vector<std::shared_ptr<Link>> links_;
};

}  // namespace Orvo
