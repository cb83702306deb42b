#pragma once

#include <array>
#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "Manager/Link/line_splitter.h"
#include "Manager/Session/replay_length.h"
#include "Manager/Station/device.h"
#include "Script/file_descriptor.h"
#include "Script/script_runner.h"

namespace Orvo::Manager {

/// How fast a replay's time passes.
struct ReplaySpeed {
    std::string_view name;
    int quarters = 4;  ///< of real time
};

inline constexpr auto kReplaySpeeds =
    std::to_array<ReplaySpeed>({{"¼x", 1},
                                {"½x", 2},
                                {"1x", 4},
                                {"2x", 8},
                                {"4x", 16},
                                // A window's moments hold no more.
                                {"as fast as possible", 4000}});
inline constexpr const ReplaySpeed& kRealTime = kReplaySpeeds[2];

/// A recorded session in the place of an amplifier: a script that plays the host and the person of
/// a panel at the pace at which time passes, as far as the machine keeps up. The panel's clock is
/// the script's, and so are the prompts.
///
/// What can't be sliced into moments that the window doesn't notice ends it with a complaint: a
/// line above `kLongestLine`, and events and prompts in whose midst more is done than such a
/// moment holds. So does what there is no memory for.
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

    void setPaused(bool isPaused) { isPaused_ = isPaused; }
    [[nodiscard]] bool isPaused() const { return isPaused_; }
    void setSpeed(const ReplaySpeed& speed) { speed_ = &speed; }
    [[nodiscard]] const ReplaySpeed& speed() const { return *speed_; }
    /// Where it is: "00:12:03 of 00:45:10, 2x, line 812".
    [[nodiscard]] std::string position() const;

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

    std::chrono::milliseconds atSpeed(std::chrono::milliseconds elapsed);
    void play(std::chrono::milliseconds elapsed);
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
    ReplayLength length_;
    std::chrono::milliseconds played_{0};
    const ReplaySpeed* speed_ = &kRealTime;
    int quarters_ = 0;  // of a millisecond, that are left over
    bool isPaused_ = false;
    std::chrono::milliseconds left_{0};  // of the wait that the script is in
    bool isRead_ = false;                // to the end of the file
    bool isPlaying_ = false;
    bool isOutOfTime_ = false;
    bool isOver_ = false;
    std::optional<std::string> complaint_;
};

}  // namespace Orvo::Manager
