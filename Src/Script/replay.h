#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include "Script/session.h"

namespace Orvo::Script {

/// A script that plays the host and the person of a panel at the pace at which time passes, as far
/// as the machine keeps up. The panel's clock is the script's, and so are the prompts.
class Replay final : private Person {
public:
    /// A file that can't be read is an empty script.
    Replay(PanelOwner& owner, Person& person, const Grammar& grammar,
           const std::filesystem::path& script);

    /// The file's name, in UTF-8.
    [[nodiscard]] const std::string& name() const { return name_; }
    void advance(std::chrono::milliseconds elapsed);
    /// The time since the last command.
    [[nodiscard]] std::chrono::milliseconds silence() const { return silence_; }

    [[nodiscard]] bool isOver() const { return isOver_; }
    /// What was not understood, with its place; it ends the replay.
    [[nodiscard]] const std::optional<std::string>& complaint() const { return complaint_; }

private:
    Runtime::Store& store() override { return person_.store(); }
    void perform(const Runtime::Deed& deed) override { person_.perform(deed); }
    void shoot(const String& file) override { person_.shoot(file); }
    void wait(std::chrono::milliseconds time) override;

    void runLine();

    const std::string name_;
    std::ifstream lines_;
    Person& person_;
    Session session_;
    std::size_t lineNumber_ = 0;
    std::chrono::milliseconds left_{0};  // of the wait that the script is in
    std::chrono::milliseconds silence_{0};
    bool isOver_ = false;
    std::optional<std::string> complaint_;
};

}  // namespace Orvo::Script
