#include "Manager/Session/replay.h"

#include <algorithm>

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;
using SteadyClock = std::chrono::steady_clock;

// A script that never waits must not hold up the window.
constexpr auto kLongestMoment = 15ms;

}  // namespace

Replay::Replay(Script::PanelOwner& owner, Script::Person& person,
               const std::filesystem::path& script)
    : lines_(script),
      person_(person),
      session_(
          owner, *this, {.place = Script::Place::inWindow}, [](std::string_view) {},
          Script::UnawaitedErrors::areTheOwners),
      script_(session_, script.filename().string()) {}

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
    complaint_ = script_.run(line);
    isOver_ = complaint_ || session_.hasQuit();
}

}  // namespace Orvo::Manager
