#pragma once

#include <functional>
#include <list>
#include <memory>

#include "Orvo/core/marvane_assistant.h"
#include "Orvo/store/store.h"

namespace Orvo::Script {

/// Owns a panel with its widgets, and exchanges both for fresh ones. Whoever works with them
/// subscribes, and asks for them anew after each exchange.
class PanelOwner {
    struct Subscriber;
    using Subscribers = std::list<std::shared_ptr<Subscriber>>;

public:
    /// Lasts until it is destroyed; it may outlive the owner.
    class [[nodiscard]] Subscription {
    public:
        Subscription() = default;
        Subscription(Subscription&& other) noexcept = default;
        Subscription& operator=(Subscription&& other) noexcept;
        ~Subscription();

    private:
        friend class PanelOwner;
        explicit Subscription(std::shared_ptr<Subscriber> subscriber)
            : subscriber_(std::move(subscriber)) {}

        std::shared_ptr<Subscriber> subscriber_;
    };

    virtual ~PanelOwner() = default;

    /// Of the present panel; no longer valid once it is exchanged.
    virtual MarvaneAssistant& panel() = 0;
    virtual Runtime::Store& store() = 0;
    /// The panel for whoever plays its host: what is called here is listened to.
    virtual MarvaneAssistantInterface& calls() { return panel(); }

    /// Releases the panel and creates a fresh one; also from within a handler of one of its events
    /// or notifications.
    void renew();

    /// `renewed` is called whenever a fresh panel stands in the place of the old one, and nothing
    /// is connected to it yet; `ending` when the old one is about to go. Subscribers are called in
    /// the order in which they subscribed.
    Subscription onRenewed(std::function<void()> renewed, std::function<void()> ending = {});

protected:
    /// Puts a fresh panel in the place of the present one.
    virtual void exchange() = 0;

private:
    struct Subscriber {
        std::function<void()> renewed;
        std::function<void()> ending;
        bool isSubscribed = true;
    };

    void tell(std::function<void()> Subscriber::*what);

    Subscribers subscribers_;
};

}  // namespace Orvo::Script
