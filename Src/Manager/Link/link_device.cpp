#include "Manager/Link/link_device.h"

#include <algorithm>
#include <array>
#include <new>
#include <system_error>
#include <utility>

#include "Orvo/layout/roles.h"
#include "Orvo/store/stored_widgets.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

constexpr Script::Grammar kGrammar{.speaker = Script::Grammar::Speaker::device,
                                   .place = Script::Place::inWindow};
constexpr auto kLongestMoment = 8ms;
constexpr std::size_t kPiece = 16384;  // bytes
// Whoever is behind with reading is not asked what else there is to answer.
constexpr std::size_t kMuchUnread = 65536;  // bytes

constexpr const Member& kReadOnlyLet = memberNamed<Boolean>("ReadOnly");
constexpr const Member& kAddToLog = memberNamed<String>("AggiugiTesto");

// The only one, as the panel takes it.
template <class Type>
Type argument(const Script::Call& call, const Member& member) {
    return std::get<Type>(convert(call.arguments.front(), member.parameters().front().type));
}

std::string troubleOf(std::error_code reason) {
    if (reason == std::errc::no_such_file_or_directory) return "not there";
    const bool isOfAnotherKind = reason == std::errc::inappropriate_io_control_operation;
    return isOfAnotherKind ? "no serial device, pipe or socket" : reason.message();
}

}  // namespace

LinkDevice::LinkDevice(Script::PanelOwner& owner, LinkAddress address, ReadOnlyLock isLocked,
                       Clock clock)
    : owner_(owner),
      address_(std::move(address)),
      isLocked_(std::move(isLocked)),
      clock_(std::move(clock)),
      session_(owner, *this, kGrammar, [this](std::string_view line) { say(line); }) {
    owner_.panel().Connected(false);
}

std::string LinkDevice::name() const {
    const std::string speed = address_.speed ? " at " + std::to_string(*address_.speed) : "";
    return "Link to " + address_.path + speed + (port_ ? "" : " (" + trouble_ + ")");
}

// A handler that waits lets time pass within time that passes. When memory runs out an answer may
// be missing: the link ends, as soon as it can.
void LinkDevice::advance(std::chrono::milliseconds elapsed) {
    if (silence_) *silence_ += elapsed;
    if (isListening_) return;
    untilTry_ -= elapsed;
    if (port_ == nullptr && untilTry_ <= 0ms) tryToOpen();
    if (port_ == nullptr) return;
    isListening_ = true;
    try {
        if (!isBroken_) listen();
        if (isBroken_) close();
    } catch (...) {
        isBroken_ = true;
    }
    isListening_ = false;
}

// What is no argument of the member is for the panel to refuse.
void LinkDevice::permit(const Script::Call& call) {
    const Member& member = findMember(call.dispatchId, call.kind);
    if (call.arguments.size() != member.parameterCount) return;
    if (&member == &kReadOnlyLet && isLocked_()) {
        const bool isKept = argument<Boolean>(call, member) == Boolean(true);
        if (!isKept) throw Errors::permissionDenied();
    }
    if (&member == &kAddToLog) {
        session_.expectRoomFor(sizeof(String) +
                               sizeof(char16_t) * argument<String>(call, member).size());
    }
}

std::size_t LinkDevice::keptElsewhere() const {
    const auto& log = owner_.store().get<Runtime::StoredList>(Layout::kCommon.log).state();
    return lines_.size() + unsent_.size() + log.items.size() * sizeof(String) +
           log.text * sizeof(char16_t);
}

void LinkDevice::tryToOpen() {
    untilTry_ = kBetweenTries;
    try {
        port_ = std::make_unique<LinkPort>(address_);
    } catch (const std::system_error& failure) {
        trouble_ = troubleOf(failure.code());
    } catch (const std::bad_alloc&) {
        trouble_ = "no memory";
    }
}

void LinkDevice::close() {
    session_.forgetHandlers();
    owner_.panel().Connected(false);
    port_.reset();
    lines_ = {};
    unsent_.clear();
    isBroken_ = false;
    silence_.reset();
    trouble_ = "not there";
    untilTry_ = kBetweenTries;
}

void LinkDevice::listen() {
    const auto end = clock_() + kLongestMoment;
    flush();
    while (!isBroken_ && unsent_.size() < kMuchUnread && clock_() < end) {
        if (const auto line = lines_.next()) {
            answer(*line);
        } else if (!hear()) {
            break;
        }
    }
    flush();
}

bool LinkDevice::hear() {
    std::array<char, kPiece> bytes{};
    const auto count = port_->read(bytes);
    isBroken_ = isBroken_ || !count;
    if (!count || *count == 0) return false;
    lines_.add({bytes.data(), *count});
    return true;
}

void LinkDevice::answer(const LineSplitter::Line& line) {
    silence_ = 0ms;
    if (line.isTooLong) return say("? the line is too long");
    session_.run(line.text);
}

void LinkDevice::say(std::string_view line) {
    if (isBroken_ || port_ == nullptr) return;
    unsent_.append(line).append("\n");
    isBroken_ = unsent_.size() > kMostUnread;
}

void LinkDevice::flush() {
    if (unsent_.empty()) return;
    const auto count = port_->write(unsent_);
    isBroken_ = isBroken_ || !count;
    unsent_.erase(0, count.value_or(0));
}

}  // namespace Orvo::Manager
