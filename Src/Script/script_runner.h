#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "Script/buffered_output.h"
#include "Script/line_reader.h"
#include "Script/session.h"

namespace Orvo::Script {

/// What a script does after a "?".
enum class AtComplaint : std::uint8_t { stop, goOn };

/// Runs panel script from a file descriptor and answers on standard output, before it waits for
/// more at the latest. Each "?" is reported on standard error with the script's name, line and
/// column.
class ScriptRunner {
public:
    /// `beforeWaiting` is called before every read, which may wait for whoever writes.
    ScriptRunner(PanelOwner& owner, Person& person, const Grammar& grammar, int descriptor,
                 std::string name, AtComplaint atComplaint,
                 std::function<void()> beforeWaiting = {});

    /// Whether every command was understood. Throws std::system_error when reading or writing
    /// fails.
    bool run();

private:
    void report(const Misunderstood& complaint, std::string_view line);

    BufferedOutput output_;
    Session session_;
    LineReader lines_;
    std::string name_;
    AtComplaint atComplaint_;
    std::size_t lineNumber_ = 0;
};

/// Where in a script something was not understood, and what: "NAME:LINE:COLUMN: TEXT", both counted
/// from 1, the column in characters.
std::string placed(const Misunderstood& complaint, const std::string& name, std::size_t lineNumber,
                   std::string_view line);

/// The first line of a file without the mark that some editors begin it with.
std::string_view withoutByteOrderMark(std::string_view line);

/// How a program that runs a script ends.
enum Status { done, notUnderstood, cannotRun };

/// Runs the script of a file, of standard input for "-". `beforeWaiting` is told what is read from.
/// Throws std::system_error when the file can't be opened or read.
Status runScript(
    PanelOwner& owner, Person& person, const Grammar& grammar, const std::string& file,
    AtComplaint atComplaint, const std::function<void(int descriptor)>& beforeWaiting = [](int) {});

}  // namespace Orvo::Script
