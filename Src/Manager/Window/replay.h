#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <string>

#include "Manager/Station/device.h"
#include "Manager/Window/replay_bench.h"
#include "Script/session.h"

namespace Orvo::Manager {

/// A script that plays the host and the person of a window's panel at the pace at which time
/// passes, as far as the machine keeps up. The panel's clock is the script's.
class Replay final : public Device {
public:
    /// `renew` as for ReplayBench, by way of `panelRenewed`. A file that can't
    /// be read is an empty script.
    Replay(Window::PanelWidget& window, std::function<void()> renew,
           const std::filesystem::path& script);

    [[nodiscard]] std::string name() const override { return "Replay of " + name_; }
    void advance(std::chrono::milliseconds elapsed) override;
    void panelRenewed() override { bench_.takePanel(); }
    [[nodiscard]] std::optional<std::chrono::milliseconds> sinceLastWord() const override {
        return silence_;
    }

    [[nodiscard]] bool isOver() const { return isOver_; }
    /// What was not understood, with its place; it ends the replay.
    [[nodiscard]] const std::optional<std::string>& complaint() const { return complaint_; }

private:
    void runLine();

    const std::string name_;
    std::ifstream lines_;
    ReplayBench bench_;
    Script::Session session_;
    std::size_t lineNumber_ = 0;
    std::chrono::milliseconds left_{0};  // of the wait that the script is in
    std::chrono::milliseconds silence_{0};
    bool isOver_ = false;
    std::optional<std::string> complaint_;
};

}  // namespace Orvo::Manager
