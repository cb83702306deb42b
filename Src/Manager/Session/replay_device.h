#pragma once

#include "Manager/Station/device.h"
#include "Script/replay.h"

namespace Orvo::Manager {

/// A recorded session in the place of an amplifier.
class ReplayDevice final : public Device {
public:
    ReplayDevice(Script::PanelOwner& owner, Script::Person& person, const std::string& file)
        : replay_(owner, person, kGrammar, file) {}

    [[nodiscard]] std::string name() const override { return "Replay of " + replay_.name(); }
    void advance(std::chrono::milliseconds elapsed) override { replay_.advance(elapsed); }
    [[nodiscard]] std::optional<std::chrono::milliseconds> sinceLastWord() const override {
        return replay_.silence();
    }

    [[nodiscard]] const Script::Replay& replay() const { return replay_; }

private:
    static constexpr Script::Grammar kGrammar{.speaker = Script::Grammar::Speaker::anyone,
                                              .place = Script::Place::inWindow};

    Script::Replay replay_;
};

}  // namespace Orvo::Manager
