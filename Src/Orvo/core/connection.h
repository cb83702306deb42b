#pragma once

#include <functional>
#include <memory>
#include <span>
#include <utility>

#include "Orvo/core/value.h"
#include "Orvo/values/error.h"

namespace Orvo {

/// Receives any event, late-bound: its dispatch id, and copies of its arguments to read or assign.
using LateBoundSink = std::function<void(Long dispatchId, std::span<Value> arguments)>;

/// What a host wants to be told of errors that nobody waits for.
using ErrorHandler = std::function<void(const Error&)>;

/// What somebody holds while it is told of something, such as a host of the panel's events: when it
/// ends, nothing is told any more, and what the receiver holds ends too; from within what it is
/// told, once that is over. It may outlive the panel.
class [[nodiscard]] Connection {
public:
    /// The teller's side, which alone owns the receiver.
    class Link {
    public:
        virtual ~Link() = default;
        [[nodiscard]] virtual bool isConnected() const = 0;
        virtual void disconnect() = 0;
    };

    Connection() = default;
    explicit Connection(std::weak_ptr<Link> link) : link_(std::move(link)) {}
    Connection(Connection&& other) noexcept = default;
    Connection& operator=(Connection&& other) noexcept {
        if (this == &other) return *this;
        disconnect();
        link_ = std::move(other.link_);
        return *this;
    }
    ~Connection() { disconnect(); }

    void disconnect() {
        if (const auto link = std::exchange(link_, {}).lock()) link->disconnect();
    }
    [[nodiscard]] bool isConnected() const {
        const auto link = link_.lock();
        return link != nullptr && link->isConnected();
    }

private:
    std::weak_ptr<Link> link_;
};

}  // namespace Orvo
