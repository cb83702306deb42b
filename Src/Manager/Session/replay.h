#pragma once

#include <chrono>
#include <filesystem>
#include <functional>

#include "Manager/Link/line_splitter.h"
#include "Manager/Station/device.h"
#include "Script/file_descriptor.h"
#include "Script/script_runner.h"

namespace Orvo::Manager {

/// A recorded session in the place of an amplifier: a script that plays the host and the person of
/// a panel at the pace at which time passes, as far as the machine keeps up. The panel's clock is
/// the script's, and so are the prompts.
///
/// What can't be sliced into moments that the window doesn't notice ends it with a complaint: a
/// line above `kLongestLine`, and a handler or a prompt in whose midst more is done than such a
/// moment holds.
class Replay final : public Device, private Script::Person {
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    /// What a link takes, each byte of it recorded as an escape.
    static constexpr std::size_t kLongestLine =
        (sizeof "\\u0000" - 1) * LineSplitter::kLongestLine;  // bytes

    /// A file that can't be read is an empty script.
    Replay(Script::PanelOwner& owner, Script::Person& person, const std::filesystem::path& script,
           Clock clock = std::chrono::steady_clock::now);

    [[nodiscard]] std::string name() const override { return "Replay of " + script_.name(); }
    void advance(std::chrono::milliseconds elapsed) override;
    /// However long a script waits, it has nothing else to say.
    [[nodiscard]] std::optional<std::chrono::milliseconds> sinceLastWord() const override {
        return std::chrono::milliseconds(0);
    }

    [[nodiscard]] bool isOver() const { return isOver_; }
    /// What was not understood, with its place; it ends the replay.
    [[nodiscard]] const std::optional<std::string>& complaint() const { return complaint_; }

private:
    Runtime::Store& store() override { return person_.store(); }
    void perform(const Runtime::Deed& deed) override { person_.perform(deed); }
    void shoot(const String& file) override { person_.shoot(file); }
    void wait(std::chrono::milliseconds time) override;
    void startMidst() override;
    bool hasTime() override;

    void goOn();
    void read();
    void run(const LineSplitter::Line& line);

    Clock clock_;
    std::chrono::steady_clock::time_point endOfPatience_;
    Script::FileDescriptor file_;
    LineSplitter lines_{kLongestLine};
    Script::Person& person_;
    Script::Session session_;
    Script::ScriptLines script_;
    std::chrono::milliseconds left_{0};  // of the wait that the script is in
    bool isRead_ = false;                // to the end of the file
    bool isOutOfTime_ = false;
    bool isOver_ = false;
    std::optional<std::string> complaint_;
};

}  // namespace Orvo::Manager
