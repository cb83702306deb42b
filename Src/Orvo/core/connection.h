#pragma once

#include <memory>

namespace Orvo {

/// What a host holds while it hears the panel's events: when it ends, the sink is disconnected. It
/// may outlive the panel.
class [[nodiscard]] Connection {
public:
    class Link;

    Connection() = default;
    explicit Connection(std::shared_ptr<Link> link);
    Connection(Connection&& other) noexcept;
    Connection& operator=(Connection&& other) noexcept;
    ~Connection();

    void disconnect();
    [[nodiscard]] bool isConnected() const;

private:
    std::shared_ptr<Link> link_;
};

}  // namespace Orvo
