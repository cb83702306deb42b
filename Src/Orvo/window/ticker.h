#pragma once

#include <chrono>

#include <QTimer>

#include "Orvo/store/store.h"

namespace Orvo::Window {

/// Runs the store's clock by the real one, with one timer that waits for the next tick.
class Ticker final {
public:
    explicit Ticker(Runtime::Store& store);
    ~Ticker();
    Ticker(const Ticker&) = delete;
    Ticker& operator=(const Ticker&) = delete;

    /// Waits anew; to be called when a timer of the store has changed.
    void arm();

private:
    using Clock = std::chrono::steady_clock;

    [[nodiscard]] Runtime::Store::Milliseconds elapsed() const;
    void catchUp();

    Runtime::Store& store_;
    Clock::time_point caughtUp_ = Clock::now();
    QTimer timer_;
};

}  // namespace Orvo::Window
