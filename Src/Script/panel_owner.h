#pragma once

#include <functional>
#include <utility>

#include "Orvo/core/marvane_assistant.h"
#include "Orvo/core/receivers.h"
#include "Orvo/store/store.h"

namespace Orvo::Script {

/// Owns a panel with its widgets, and exchanges both for fresh ones. Whoever works with them
/// subscribes, and asks for them anew after each exchange.
class PanelOwner {
public:
    virtual ~PanelOwner() = default;

    /// Of the present panel; no longer valid once it is exchanged.
    virtual MarvaneAssistant& panel() = 0;
    virtual Runtime::Store& store() = 0;

    /// Releases the panel and creates a fresh one; also from within a handler of one of its events
    /// or notifications.
    void renew() {
        subscribers_.tell([](const Subscriber& subscriber) { subscriber.ending(); });
        exchange();
        subscribers_.tell([](const Subscriber& subscriber) { subscriber.renewed(); });
    }

    /// `renewed` is called whenever a fresh panel stands in the place of the old one, and nothing
    /// is connected to it yet; `ending` when the old one is about to go. Subscribers are called in
    /// the order in which they subscribed.
    Connection onRenewed(
        std::function<void()> renewed, std::function<void()> ending = [] {}) {
        return subscribers_.add({std::move(renewed), std::move(ending)});
    }

protected:
    /// Puts a fresh panel in the place of the present one.
    virtual void exchange() = 0;

private:
    struct Subscriber {
        std::function<void()> renewed;
        std::function<void()> ending;
    };

    Receivers<Subscriber> subscribers_;
};

}  // namespace Orvo::Script
