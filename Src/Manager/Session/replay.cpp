#include "Manager/Session/replay.h"

#include <algorithm>
#include <array>
#include <new>
#include <stdexcept>
#include <utility>

#include "Script/files.h"
#include "Simulator/internal_data.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

// A script that never waits must not hold up the window. What is begun may take a little longer.
constexpr auto kLongestMoment = 15ms;
constexpr auto kPatience = 30ms;
// What a handler waits takes no time, but the timers that tick meanwhile do.
constexpr auto kLongestStep = 1000ms;
constexpr std::size_t kPiece = 16384;  // bytes

Script::FileDescriptor opened(const std::filesystem::path& script) {
    try {
        return Script::openRegular(script);
    } catch (const std::runtime_error&) {
        return Script::FileDescriptor();
    }
}

}  // namespace

Replay::Replay(Script::PanelOwner& owner, Script::Person& person,
               const std::filesystem::path& script, Clock clock)
    : clock_(std::move(clock)),
      file_(opened(script)),
      person_(person),
      session_(owner, *this,
               {.speaker = Script::Grammar::Speaker::recording, .place = Script::Place::inWindow},
               {}, Script::UnawaitedErrors::areTheOwners),
      script_(session_, script.filename().string()),
      length_(script) {}

std::string Replay::position() const {
    const auto total = length_.total();
    return Simulator::clockText(played_) + (total ? " of " + Simulator::clockText(*total) : "") +
           ", " + (isPaused_ ? "paused" : std::string(speed_->name)) + ", line " +
           std::to_string(script_.lineNumber());
}

std::chrono::milliseconds Replay::atSpeed(std::chrono::milliseconds elapsed) {
    const auto quarters = elapsed.count() * speed_->quarters + quarters_;
    quarters_ = static_cast<int>(quarters % kRealTime.quarters);
    return std::chrono::milliseconds(quarters / kRealTime.quarters);
}

// All that is done in the midst of something in one moment has that moment's time.
void Replay::advance(std::chrono::milliseconds elapsed) {
    length_.look();
    if (isPaused_) return;
    startMidst();
    isPlaying_ = true;
    try {
        play(atSpeed(elapsed));
    } catch (const std::bad_alloc&) {
        complaint_ = Errors::kOutOfMemory.description();
    }
    isPlaying_ = false;
    if (isOutOfTime_) {
        complaint_ =
            script_.placed("more is done in the midst of a command than there is time for");
    }
    isOver_ = isOver_ || complaint_;
}

void Replay::play(std::chrono::milliseconds elapsed) {
    const auto now = clock_();
    while (!isOver_ && clock_() < now + kLongestMoment) {
        const auto step = std::min(elapsed, left_);
        person_.wait(step);
        elapsed -= step;
        left_ -= step;
        played_ += step;
        if (left_ > 0ms) break;
        goOn();
        isOver_ = isOver_ || complaint_ || isOutOfTime_ || session_.hasQuit();
    }
}

// A handler's wait is over when the handler goes on; the script's own takes its time.
void Replay::wait(std::chrono::milliseconds time) {
    if (!session_.isInTheMidst()) {
        left_ += time;
        return;
    }
    while (time > 0ms && hasTime()) {
        const auto step = std::min<std::chrono::milliseconds>(time, kLongestStep);
        person_.wait(step);
        time -= step;
    }
}

void Replay::startMidst() {
    if (!isPlaying_) endOfPatience_ = clock_() + kPatience;
}

bool Replay::hasTime() {
    isOutOfTime_ = isOutOfTime_ || clock_() >= endOfPatience_;
    return !isOutOfTime_;
}

void Replay::goOn() {
    if (const auto line = lines_.next()) return run(*line);
    if (!isRead_) return read();
    isOver_ = !script_.hasRest();
    complaint_ = script_.runRest();
}

// The last line may do without its line break, unless it is one that a recording was cut off in.
void Replay::read() {
    std::array<char, kPiece> bytes{};
    const std::size_t count = Script::readFrom(file_, bytes);
    lines_.add({bytes.data(), count});
    isRead_ = count == 0;
    if (isRead_ && !session_.isChronological()) lines_.add("\n");
}

void Replay::run(const LineSplitter::Line& line) {
    complaint_ = line.isTooLong ? script_.refuse("the line is too long") : script_.run(line.text);
}

}  // namespace Orvo::Manager
