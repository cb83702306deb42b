#include "Script/script_runner.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include <unistd.h>

#include "Script/buffered_output.h"
#include "Script/files.h"
#include "Script/line_reader.h"
#include "Script/program.h"

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

struct Source {
    int descriptor;
    std::string name;
};

class ScriptRun {
public:
    ScriptRun(PanelOwner& owner, Person& person, const Grammar& grammar, const Source& source,
              const std::function<void(int)>& beforeWaiting)
        : session_(owner, person, grammar, [this](std::string_view line) { output_.line(line); }),
          script_(session_, source.name),
          reader_(source.descriptor, source.name,
                  [this, &beforeWaiting, descriptor = source.descriptor] {
                      output_.flush();
                      beforeWaiting(descriptor);
                  }) {}

    Status run(AtComplaint atComplaint) {
        atComplaint_ = atComplaint;
        while (goesOn()) {
            const auto line = nextLine();
            if (!line) break;
            tell(script_.run(*line));
        }
        if (goesOn()) tell(script_.runRest());
        output_.flush();
        return status_;
    }

private:
    [[nodiscard]] bool goesOn() const {
        return !session_.hasQuit() && (status_ == done || atComplaint_ == AtComplaint::goOn);
    }

    // The last line may do without its line break, unless it is one that a recording was cut off
    // in.
    std::optional<std::string_view> nextLine() {
        const auto line = reader_.next();
        return reader_.isCutOff() && session_.isChronological() ? std::nullopt : line;
    }

    void tell(const std::optional<std::string>& complaint) {
        if (!complaint) return;
        status_ = notUnderstood;
        output_.flush();
        complain(*complaint);
    }

    BufferedOutput output_;
    Session session_;
    ScriptLines script_;
    LineReader reader_;
    AtComplaint atComplaint_ = AtComplaint::stop;
    Status status_ = done;
};

}  // namespace

std::optional<std::string> ScriptLines::run(std::string_view line) {
    const bool isMarked = ++lineNumber_ == 1 && line.starts_with(kByteOrderMark);
    if (isMarked) line.remove_prefix(kByteOrderMark.size());
    const bool waits = session_.isChronological() && !isForTheMidst(line);
    if (!waits) return run(line, lineNumber_);
    auto complaint = runRest();
    rest_ = line;
    restNumber_ = lineNumber_;
    return complaint;
}

std::string ScriptLines::refuse(std::string_view reason) {
    ++lineNumber_;
    return placed(reason);
}

std::string ScriptLines::placed(std::string_view text) const {
    return placed(text, lineNumber_, 1);
}

std::string ScriptLines::placed(std::string_view text, std::size_t line,
                                std::ptrdiff_t column) const {
    return (name_ + ':' + std::to_string(line) + ':' + std::to_string(column) + ": ").append(text);
}

std::optional<std::string> ScriptLines::runRest() {
    return run(std::exchange(rest_, {}), restNumber_);
}

std::optional<std::string> ScriptLines::run(std::string_view line, std::size_t number) {
    const auto complaint = session_.run(line);
    if (!complaint) return std::nullopt;
    return placed(complaint->text, number, columnAt(line, complaint->offset));
}

Status runScript(PanelOwner& owner, Person& person, const Grammar& grammar, const std::string& file,
                 AtComplaint atComplaint, const std::function<void(int)>& beforeWaiting) {
    if (file == "-") {
        return ScriptRun(owner, person, grammar, {STDIN_FILENO, "<stdin>"}, beforeWaiting)
            .run(atComplaint);
    }
    const FileDescriptor opened = openReadable(file);
    return ScriptRun(owner, person, grammar, {opened.get(), file}, beforeWaiting).run(atComplaint);
}

}  // namespace Orvo::Script
