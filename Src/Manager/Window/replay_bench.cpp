#include "Manager/Window/replay_bench.h"

#include <utility>

namespace Orvo::Manager {

ReplayBench::ReplayBench(Window::PanelWidget& window, std::function<void()> renew)
    : WindowBench(window), renew_(std::move(renew)) {
    takePanel();
}

ReplayBench::~ReplayBench() { widgets().promptWith(prompter_); }

void ReplayBench::takePanel() {
    prompter_ = window().store().prompter();
    takeWindow();
}

std::chrono::milliseconds ReplayBench::takeWait() {
    return std::exchange(wait_, std::chrono::milliseconds(0));
}

void ReplayBench::wait(std::chrono::milliseconds time) {
    if (waiting_ == Waiting::atOnce) return WindowBench::wait(time);
    wait_ += time;
}

}  // namespace Orvo::Manager
