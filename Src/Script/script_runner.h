#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "Script/session.h"

namespace Orvo::Script {

/// What a script does after a "?".
enum class AtComplaint : std::uint8_t { stop, goOn };

/// A script's lines, run one after the other; once it says that it is chronological, each command
/// together with what is queued below it.
class ScriptLines {
public:
    ScriptLines(Session& session, std::string name) : session_(session), name_(std::move(name)) {}

    /// Where in the script something was not understood, if anything, and what:
    /// "NAME:LINE:COLUMN: TEXT", both counted from 1, the column in characters. The first line may
    /// begin with the mark that some editors begin a file with.
    std::optional<std::string> run(std::string_view line);
    /// Runs the command that was still waiting for what is queued below it, if one was.
    std::optional<std::string> runRest();
    /// What to say of a line that is too much to be run.
    std::string refuse(std::string_view reason);
    /// A text with the place of the last line.
    [[nodiscard]] std::string placed(std::string_view text) const;
    [[nodiscard]] bool hasRest() const { return !rest_.empty(); }

    [[nodiscard]] const std::string& name() const { return name_; }
    /// The last line's number, counted from 1.
    [[nodiscard]] std::size_t lineNumber() const { return lineNumber_; }

private:
    std::optional<std::string> run(std::string_view line, std::size_t number);
    [[nodiscard]] std::string placed(std::string_view text, std::size_t line,
                                     std::ptrdiff_t column) const;

    Session& session_;
    const std::string name_;
    std::size_t lineNumber_ = 0;
    std::string rest_;
    std::size_t restNumber_ = 0;
};

/// How a program that runs a script ends.
enum Status { done, notUnderstood, cannotRun };

struct StatusText {
    Status status;
    std::string_view text;
};
inline constexpr auto kStatusTexts = std::to_array<StatusText>({
    {done, "all was done"},
    {notUnderstood, "a command of the script was not understood"},
    {cannotRun, "the script, or what else was asked for, can't be run"},
});

/// Runs the script of a file, of standard input for "-", and answers on standard output, before it
/// waits for more at the latest. Each "?" is reported on standard error with its place.
/// `beforeWaiting` is told what is read from. Throws std::runtime_error when the file can't be
/// opened, a line is too long, or reading or writing fails.
Status runScript(
    PanelOwner& owner, Person& person, const Grammar& grammar, const std::string& file,
    AtComplaint atComplaint, const std::function<void(int descriptor)>& beforeWaiting = [](int) {});

}  // namespace Orvo::Script
