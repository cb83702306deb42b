#include "Script/script_runner.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

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

ScriptRunner::ScriptRunner(PanelOwner& owner, Person& person, const Grammar& grammar,
                           int descriptor, std::string name, AtComplaint atComplaint,
                           std::function<void()> beforeWaiting)
    : session_(owner, person, grammar, [this](std::string_view line) { output_.line(line); }),
      lines_(descriptor,
             [this, beforeWaiting = std::move(beforeWaiting)] {
                 output_.flush();
                 if (beforeWaiting) beforeWaiting();
             }),
      name_(std::move(name)),
      atComplaint_(atComplaint) {}

bool ScriptRunner::run() {
    bool isUnderstood = true;
    while (!session_.hasQuit() && (isUnderstood || atComplaint_ == AtComplaint::goOn)) {
        auto line = lines_.next();
        if (!line) break;
        if (++lineNumber_ == 1) line = withoutByteOrderMark(*line);
        const auto complaint = session_.run(*line);
        if (complaint) report(*complaint, *line);
        isUnderstood = isUnderstood && !complaint;
    }
    output_.flush();
    return isUnderstood;
}

void ScriptRunner::report(const Misunderstood& complaint, std::string_view line) {
    output_.flush();
    std::fprintf(stderr, "%s\n", placed(complaint, name_, lineNumber_, line).c_str());
}

std::string placed(const Misunderstood& complaint, const std::string& name, std::size_t lineNumber,
                   std::string_view line) {
    return name + ':' + std::to_string(lineNumber) + ':' +
           std::to_string(columnAt(line, complaint.offset)) + ": " + complaint.text;
}

std::string_view withoutByteOrderMark(std::string_view line) {
    if (line.starts_with(kByteOrderMark)) line.remove_prefix(kByteOrderMark.size());
    return line;
}

Status runScript(PanelOwner& owner, Person& person, const Grammar& grammar, const std::string& file,
                 AtComplaint atComplaint, const std::function<void(int)>& beforeWaiting) {
    const bool isInput = file == "-";
    const int descriptor = isInput ? STDIN_FILENO : open(file);
    ScriptRunner script(owner, person, grammar, descriptor, isInput ? "<stdin>" : file, atComplaint,
                        [&] { beforeWaiting(descriptor); });
    return script.run() ? done : notUnderstood;
}

}  // namespace Orvo::Script
