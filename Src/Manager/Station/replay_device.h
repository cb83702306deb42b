#pragma once

#include "Manager/Station/device.h"
#include "Script/replay.h"

namespace Orvo::Manager {

/// A session that is replayed.
class ReplayDevice final : public Device {
public:
    ReplayDevice(Script::PanelOwner& owner, Script::Person& person, const Script::Grammar& grammar,
                 const std::filesystem::path& script)
        : replay_(owner, person, grammar, script) {}

    [[nodiscard]] std::string name() const override { return "Replay of " + replay_.name(); }
    void advance(std::chrono::milliseconds elapsed) override { replay_.advance(elapsed); }
    [[nodiscard]] std::optional<std::chrono::milliseconds> sinceLastWord() const override {
        return replay_.silence();
    }

    [[nodiscard]] const Script::Replay& replay() const { return replay_; }

private:
    Script::Replay replay_;
};

}  // namespace Orvo::Manager
