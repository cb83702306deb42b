#include "Manager/Station/conversation.h"

#include <algorithm>
#include <array>
#include <utility>

#include "Orvo/core/event_table.h"
#include "Script/text_of.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

constexpr auto kPause = 1s;
constexpr std::size_t kIndent = 2;
// Whatever a host invents as indexes, so many are told apart.
constexpr std::size_t kMostRemembered = 1000;

// What a host reports at a steady rate.
constexpr auto kFlowing = std::to_array<std::string_view>(
    {"VPPower", "VPAux", "VNPower", "VNAux", "Temperature", "DisegnaAssi", "DisegnaFormaDOnda"});

bool isFlowing(const Member& member) {
    return member.kind == MemberKind::get ||
           std::find(kFlowing.begin(), kFlowing.end(), member.name) != kFlowing.end();
}

// "12.3 s", with a point in every locale.
std::string seconds(std::chrono::milliseconds time) {
    const auto tenths = time.count() / 100;
    return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10) + " s";
}

}  // namespace

void Conversation::raised(Long dispatchId, std::span<const Value> arguments) {
    const Event& event = eventWith(dispatchId);
    write(Script::eventText(event, arguments));
    ++depth_;
}

void Conversation::handled() { depth_ = std::max(0, depth_ - 1); }

void Conversation::startAnew() {
    depth_ = 0;
    lastSaid_.clear();
}

void Conversation::called(const Member& member, std::span<const Value> arguments) {
    isLastCallShown_ = isWorthALine(member, arguments);
    if (isLastCallShown_) write(Script::commandText(member, arguments));
}

void Conversation::returned(const Member&, const Value& result) {
    if (isLastCallShown_ && result.index() != 0) write("= " + Script::textOf(result));
}

void Conversation::failed(const Member&, const Error& error) { failed(error); }

void Conversation::failed(const Error& error) { write("! " + Script::textOf(error)); }

bool Conversation::isWorthALine(const Member& member, std::span<const Value> arguments) {
    const bool news = isNews(member, arguments);
    if (depth_ > 0 || detail_ == Detail::everything) return true;
    return !isFlowing(member) && news;
}

// Only of a property: to call a method again is no repetition.
bool Conversation::isNews(const Member& member, std::span<const Value> arguments) {
    if (member.kind != MemberKind::let) return true;
    if (lastSaid_.size() > kMostRemembered) lastSaid_.clear();
    const std::string value = Script::textOf(arguments.back());
    std::string& last =
        lastSaid_[Script::commandText(member, arguments.first(arguments.size() - 1))];
    return std::exchange(last, value) != value;
}

void Conversation::write(const std::string& text) {
    if (depth_ == 0 && time_ - timeOfLastLine_ >= kPause) log_.add("# " + seconds(time_));
    timeOfLastLine_ = time_;
    log_.add(std::string(kIndent * static_cast<std::size_t>(depth_), ' ') + text);
}

}  // namespace Orvo::Manager
