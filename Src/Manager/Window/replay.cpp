#include "Manager/Window/replay.h"

#include <algorithm>
#include <utility>

#include <QDeadlineTimer>

#include "Script/script_runner.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

// A script that never waits must not hold up the window.
constexpr auto kLongestMoment = 15ms;

// A handler's wait is over when the handler goes on; the script's own may take its time.
ReplayBench::Waiting waitingOf(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    return line.starts_with("wait") ? ReplayBench::Waiting::asked : ReplayBench::Waiting::atOnce;
}

}  // namespace

Replay::Replay(Window::PanelWidget& window, std::function<void()> renew,
               const std::filesystem::path& script)
    : name_(script.filename().string()),
      lines_(script),
      bench_(window, std::move(renew)),
      session_(bench_, WindowBench::kGrammar, [](std::string_view) {}) {}

void Replay::advance(std::chrono::milliseconds elapsed) {
    silence_ += elapsed;
    const QDeadlineTimer end(kLongestMoment);
    while (!isOver_ && !end.hasExpired()) {
        const auto step = std::min(elapsed, left_);
        bench_.widgets().advance(step);
        elapsed -= step;
        left_ -= step;
        if (left_ > 0ms) return;
        runLine();
    }
}

void Replay::runLine() {
    std::string line;
    isOver_ = !std::getline(lines_, line);
    if (isOver_) return;
    silence_ = 0ms;
    if (++lineNumber_ == 1) line = Script::withoutByteOrderMark(line);
    bench_.setWaiting(waitingOf(line));
    const auto complaint = session_.run(line);
    bench_.setWaiting(ReplayBench::Waiting::atOnce);
    left_ = bench_.takeWait();
    if (complaint) complaint_ = Script::placed(*complaint, name_, lineNumber_, line);
    isOver_ = complaint || session_.hasQuit();
}

}  // namespace Orvo::Manager
