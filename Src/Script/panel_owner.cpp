#include "Script/panel_owner.h"

#include <utility>

namespace Orvo::Script {

PanelOwner::Subscription& PanelOwner::Subscription::operator=(Subscription&& other) noexcept {
    std::swap(subscriber_, other.subscriber_);
    return *this;
}

PanelOwner::Subscription::~Subscription() {
    if (subscriber_) subscriber_->isSubscribed = false;
}

void PanelOwner::renew() {
    tell(&Subscriber::ending);
    exchange();
    tell(&Subscriber::renewed);
}

PanelOwner::Subscription PanelOwner::onRenewed(std::function<void()> renewed,
                                               std::function<void()> ending) {
    subscribers_.push_back(
        std::make_shared<Subscriber>(Subscriber{std::move(renewed), std::move(ending)}));
    return Subscription(subscribers_.back());
}

// Whoever is told may subscribe others, and end subscriptions.
void PanelOwner::tell(std::function<void()> Subscriber::*what) {
    subscribers_.remove_if([](const auto& subscriber) { return !subscriber->isSubscribed; });
    const Subscribers told = subscribers_;
    for (const auto& subscriber : told) {
        const auto& call = (*subscriber).*what;
        if (subscriber->isSubscribed && call) call();
    }
}

}  // namespace Orvo::Script
