#include "Manager/Link/link_device.h"

#include <algorithm>
#include <array>
#include <new>
#include <system_error>
#include <utility>

#include "Script/message_log.h"

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

struct Trouble {
    std::errc reason;
    const char* words;
};

constexpr auto kTroubles = std::to_array<Trouble>({
    {std::errc::no_such_file_or_directory, "not there"},
    {std::errc::not_a_directory, "not there"},
    {std::errc::no_such_device, "not there"},
    {std::errc::no_such_device_or_address, "not there"},
    {std::errc::permission_denied, "you may not open it"},
    {std::errc::operation_not_permitted, "you may not open it"},
    {std::errc::device_or_resource_busy, "in use by another program"},
    {std::errc::inappropriate_io_control_operation, "no serial device, pipe or socket"},
    {std::errc::connection_refused, "nobody listens there"},
    {std::errc::resource_unavailable_try_again, "whoever listens there is busy"},
    {std::errc::not_supported, "no such speed or format on this device"},
    {std::errc::io_error, "the device does not work"},
});

std::string troubleOf(std::error_code reason) {
    const auto* row = std::find_if(kTroubles.begin(), kTroubles.end(),
                                   [&](const Trouble& each) { return reason == each.reason; });
    return row != kTroubles.end() ? row->words : reason.message();
}

}  // namespace

LinkDevice::LinkDevice(Script::PanelOwner& owner, LinkAddress address, ReadOnlyLock isLocked,
                       OpenStream open, Clock clock)
    : owner_(owner),
      address_(std::move(address)),
      isLocked_(std::move(isLocked)),
      open_(std::move(open)),
      clock_(std::move(clock)),
      session_(owner, *this, kGrammar, [this](std::string_view line) { say(line); }) {
    owner_.panel().Connected(false);
}

std::string LinkDevice::name() const {
    const std::string line = address_.line ? " at " + address_.line->text() : "";
    const std::string state = trouble_.empty() ? "opening" : trouble_ + ", trying again";
    return "Link to " + address_.path + line + (isOpen() ? "" : " (" + state + ")");
}

// A handler that waits lets time pass within time that passes. When memory runs out an answer may
// be missing: the link ends, as soon as it can.
void LinkDevice::advance(std::chrono::milliseconds elapsed) {
    if (silence_) *silence_ += elapsed;
    if (isListening_) return;
    untilTry_ -= elapsed;
    if (stream_ == nullptr && untilTry_ <= 0ms) tryToOpen();
    if (stream_ == nullptr) return;
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
    const bool isMode = &findMember(call.dispatchId, call.kind) == &kReadOnlyLet &&
                        call.arguments.size() == kReadOnlyLet.parameterCount;
    if (!isMode || !isLocked_()) return;
    const bool isKept = Script::argumentOf<Boolean>(call, kReadOnlyLet) == Boolean(true);
    if (!isKept) throw Errors::permissionDenied();
}

std::size_t LinkDevice::keptElsewhere() const { return lines_.size() + unsent_.size(); }

void LinkDevice::tryToOpen() {
    untilTry_ = kBetweenTries;
    try {
        stream_ = open_(address_);
    } catch (const std::system_error& failure) {
        trouble_ = troubleOf(failure.code());
    } catch (const std::bad_alloc&) {
        trouble_ = "no memory";
    }
}

void LinkDevice::close() {
    session_.forgetHandlers();
    owner_.panel().Connected(false);
    stream_.reset();
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
    const auto count = stream_->read(bytes);
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
    if (isBroken_ || stream_ == nullptr) return;
    unsent_.append(line).append("\n");
    isBroken_ = unsent_.size() > kMostUnread;
}

void LinkDevice::flush() {
    if (unsent_.empty()) return;
    const auto count = stream_->write(unsent_);
    isBroken_ = isBroken_ || !count;
    unsent_.erase(0, count.value_or(0));
}

}  // namespace Orvo::Manager
