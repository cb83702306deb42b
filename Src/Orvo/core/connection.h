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
/// ends, nothing is told any more. It may outlive the panel.
class [[nodiscard]] Connection {
public:
    struct Link {
        bool isConnected = true;
    };

    Connection() = default;
    explicit Connection(std::shared_ptr<Link> link) : link_(std::move(link)) {}
    Connection(Connection&& other) noexcept = default;
    Connection& operator=(Connection&& other) noexcept {
        if (this != &other) disconnect();
        link_ = std::move(other.link_);
        return *this;
    }
    ~Connection() { disconnect(); }

    void disconnect() {
        if (link_) link_->isConnected = false;
        link_.reset();
    }
    [[nodiscard]] bool isConnected() const { return link_ && link_->isConnected; }

private:
    std::shared_ptr<Link> link_;
};

}  // namespace Orvo
