#include "Script/replay.h"

#include <algorithm>

#include "Script/script_runner.h"

namespace Orvo::Script {
namespace {

using namespace std::chrono_literals;
using SteadyClock = std::chrono::steady_clock;

// A script that never waits must not hold up the window.
constexpr auto kLongestMoment = 15ms;

}  // namespace

Replay::Replay(PanelOwner& owner, Person& person, const Grammar& grammar,
               const std::filesystem::path& script)
    : name_(script.filename().string()),
      lines_(script),
      person_(person),
      session_(
          owner, *this, grammar, [](std::string_view) {}, UnawaitedErrors::areTheOwners) {}

void Replay::advance(std::chrono::milliseconds elapsed) {
    silence_ += elapsed;
    const auto end = SteadyClock::now() + kLongestMoment;
    while (!isOver_ && SteadyClock::now() < end) {
        const auto step = std::min(elapsed, left_);
        person_.wait(step);
        elapsed -= step;
        left_ -= step;
        if (left_ > 0ms) return;
        runLine();
    }
}

// A handler's wait is over when the handler goes on; the script's own takes its time.
void Replay::wait(std::chrono::milliseconds time) {
    if (session_.isInTheMidst()) return person_.wait(time);
    left_ += time;
}

void Replay::runLine() {
    std::string line;
    isOver_ = !std::getline(lines_, line);
    if (isOver_) return;
    silence_ = 0ms;
    if (++lineNumber_ == 1) line = withoutByteOrderMark(line);
    const auto complaint = session_.run(line);
    if (complaint) complaint_ = placed(*complaint, name_, lineNumber_, line);
    isOver_ = complaint || session_.hasQuit();
}

}  // namespace Orvo::Script
