#pragma once

#include <filesystem>
#include <fstream>

#include "Manager/Station/device.h"
#include "Script/script_runner.h"

namespace Orvo::Manager {

/// A recorded session in the place of an amplifier: a script that plays the host and the person of
/// a panel at the pace at which time passes, as far as the machine keeps up. The panel's clock is
/// the script's, and so are the prompts.
class Replay final : public Device, private Script::Person {
public:
    /// A file that can't be read is an empty script.
    Replay(Script::PanelOwner& owner, Script::Person& person, const std::filesystem::path& script);

    [[nodiscard]] std::string name() const override { return "Replay of " + script_.name(); }
    void advance(std::chrono::milliseconds elapsed) override;
    /// Since the last command.
    [[nodiscard]] std::optional<std::chrono::milliseconds> sinceLastWord() const override {
        return silence_;
    }

    [[nodiscard]] bool isOver() const { return isOver_; }
    /// What was not understood, with its place; it ends the replay.
    [[nodiscard]] const std::optional<std::string>& complaint() const { return complaint_; }

private:
    Runtime::Store& store() override { return person_.store(); }
    void perform(const Runtime::Deed& deed) override { person_.perform(deed); }
    void shoot(const String& file) override { person_.shoot(file); }
    void wait(std::chrono::milliseconds time) override;

    void runLine();

    std::ifstream lines_;
    Script::Person& person_;
    Script::Session session_;
    Script::ScriptLines script_;
    std::chrono::milliseconds left_{0};  // of the wait that the script is in
    std::chrono::milliseconds silence_{0};
    bool isOver_ = false;
    std::optional<std::string> complaint_;
};

}  // namespace Orvo::Manager
