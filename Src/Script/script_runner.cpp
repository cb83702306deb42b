#include "Script/script_runner.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

#include "Script/buffered_output.h"
#include "Script/line_reader.h"

namespace Orvo::Script {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// In characters from 1.
std::ptrdiff_t columnAt(std::string_view line, std::size_t offset) {
    const std::string_view before = line.substr(0, offset);
    return 1 + std::count_if(before.begin(), before.end(), [](char byte) {
               return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80;
           });
}

int open(const std::string& file) {
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) throw std::system_error(errno, std::generic_category(), file);
    return descriptor;
}

}  // namespace

std::optional<std::string> ScriptLines::run(std::string_view line) {
    const bool isMarked = ++lineNumber_ == 1 && line.starts_with(kByteOrderMark);
    if (isMarked) line.remove_prefix(kByteOrderMark.size());
    const auto complaint = session_.run(line);
    if (!complaint) return std::nullopt;
    return name_ + ':' + std::to_string(lineNumber_) + ':' +
           std::to_string(columnAt(line, complaint->offset)) + ": " + complaint->text;
}

Status runScript(PanelOwner& owner, Person& person, const Grammar& grammar, const std::string& file,
                 AtComplaint atComplaint, const std::function<void(int)>& beforeWaiting) {
    const bool isInput = file == "-";
    const int descriptor = isInput ? STDIN_FILENO : open(file);
    BufferedOutput output;
    Session session(owner, person, grammar, [&](std::string_view line) { output.line(line); });
    ScriptLines script(session, isInput ? "<stdin>" : file);
    LineReader reader(descriptor, [&] {
        output.flush();
        beforeWaiting(descriptor);
    });
    Status status = done;
    while (!session.hasQuit() && (status == done || atComplaint == AtComplaint::goOn)) {
        const auto line = reader.next();
        if (!line) break;
        const auto complaint = script.run(*line);
        if (!complaint) continue;
        status = notUnderstood;
        output.flush();
        std::fprintf(stderr, "%s\n", complaint->c_str());
    }
    output.flush();
    return status;
}

}  // namespace Orvo::Script
