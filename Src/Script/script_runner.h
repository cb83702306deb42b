#pragma once

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

/// A script's lines, run one after the other.
class ScriptLines {
public:
    ScriptLines(Session& session, std::string name) : session_(session), name_(std::move(name)) {}

    /// Where in the script something was not understood, if anything, and what:
    /// "NAME:LINE:COLUMN: TEXT", both counted from 1, the column in characters. The first line may
    /// begin with the mark that some editors begin a file with.
    std::optional<std::string> run(std::string_view line);

    [[nodiscard]] const std::string& name() const { return name_; }

private:
    Session& session_;
    const std::string name_;
    std::size_t lineNumber_ = 0;
};

/// How a program that runs a script ends.
enum Status { done, notUnderstood, cannotRun };

/// Runs the script of a file, of standard input for "-", and answers on standard output, before it
/// waits for more at the latest. Each "?" is reported on standard error with its place.
/// `beforeWaiting` is told what is read from. Throws std::system_error when the file can't be
/// opened, or reading or writing fails.
Status runScript(
    PanelOwner& owner, Person& person, const Grammar& grammar, const std::string& file,
    AtComplaint atComplaint, const std::function<void(int descriptor)>& beforeWaiting = [](int) {});

}  // namespace Orvo::Script
