#pragma once

#include <exception>
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
    /// or notifications. The present panel stays when no fresh one can be made; the first error of
    /// the subscribers reaches the caller once all of them know.
    void renew() {
        exchange([this] {
            subscribers_.tell([](const Subscriber& subscriber) { subscriber.ending(); });
        });
        std::exception_ptr failure;
        subscribers_.tell([&](const Subscriber& subscriber) {
            try {
                subscriber.renewed();
            } catch (...) {
                if (failure == nullptr) failure = std::current_exception();
            }
        });
        if (failure != nullptr) std::rethrow_exception(failure);
    }

    /// `renewed` is called whenever a fresh panel stands in the place of the old one, and nothing
    /// is connected to it yet; `ending`, which throws nothing, when the old one is about to go.
    /// Subscribers are called in the order in which they subscribed.
    Connection onRenewed(
        std::function<void()> renewed, std::function<void()> ending = [] {}) {
        return subscribers_.add({std::move(renewed), std::move(ending)});
    }

protected:
    /// Makes a fresh panel, or throws, then puts it in the place of the present one, which is
    /// `ending` before that.
    virtual void exchange(const std::function<void()>& ending) = 0;

private:
    struct Subscriber {
        std::function<void()> renewed;
        std::function<void()> ending;
    };

    Receivers<Subscriber> subscribers_;
};

}  // namespace Orvo::Script
