#pragma once

#include <functional>

#include "Manager/Window/window_bench.h"

namespace Orvo::Manager {

/// The panel of a window that goes on afterwards, for a script that plays both of its sides. For as
/// long as this is, prompts are the script's to answer.
class ReplayBench final : public WindowBench {
public:
    /// `renew` puts a fresh panel in the place of this one and then calls
    /// `takePanel`.
    ReplayBench(Window::PanelWidget& window, std::function<void()> renew);
    ~ReplayBench() override;

    void takePanel();

    /// How a command waits: by itself, or by leaving the time to `takeWait`.
    enum class Waiting { atOnce, asked };
    void setWaiting(Waiting waiting) { waiting_ = waiting; }
    /// The time that has been left, which is then forgotten.
    std::chrono::milliseconds takeWait();

    void renew() override { renew_(); }

private:
    void wait(std::chrono::milliseconds time) override;

    std::function<void()> renew_;
    Runtime::Prompter* prompter_ = nullptr;
    Waiting waiting_ = Waiting::atOnce;
    std::chrono::milliseconds wait_{0};
};

}  // namespace Orvo::Manager
