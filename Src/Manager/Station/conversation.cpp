#include "Manager/Station/conversation.h"

#include <algorithm>
#include <array>
#include <utility>

#include "Manager/Station/plain_words.h"
#include "Orvo/core/event_table.h"
#include "Script/message_log.h"
#include "Script/text_of.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

constexpr auto kPause = 1s;
constexpr std::size_t kIndent = 2;
// Whatever a host invents as indexes, so many are told apart.
constexpr std::size_t kMostRemembered = 1000;

// What a host reports at a steady rate.
constexpr auto kFlowing =
    std::to_array<std::string_view>({"VPPower", "VPAux", "VNPower", "VNAux", "Temperature",
                                     "Signal", "DisegnaAssi", "DisegnaFormaDOnda"});
// What the panel raises again and again by itself.
constexpr const Event& kRepeated = eventNamed("SetTemp");

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
    if (isWorthALine(event, arguments)) {
        write(isScript() ? Script::eventText(event, arguments) : inWords(event, arguments));
    }
    ++depth_;
}

void Conversation::handled() { depth_ = std::max(0, depth_ - 1); }

void Conversation::startAnew() {
    depth_ = 0;
    lastSaid_.clear();
}

void Conversation::called(const Member& member, std::span<const Value> arguments) {
    isLastCallShown_ = isWorthALine(member, arguments);
    if (!isLastCallShown_) return;
    write(isScript() ? Script::commandText(member, arguments) : inWords(member, arguments));
}

void Conversation::returned(const Member&, const Value& result) {
    if (isLastCallShown_ && isScript() && result.index() != 0) write("= " + Script::textOf(result));
}

void Conversation::failed(const Member&, const Error& error) { failed(error); }

void Conversation::failed(const Error& error) {
    write((isScript() ? "! " : "Error ") + Script::textOf(error));
}

bool Conversation::isWorthALine(const Member& member, std::span<const Value> arguments) {
    const bool news = isNews(member, arguments);
    if (!isScript() && member.kind == MemberKind::get) return false;
    if (detail_ == Detail::everything) return true;
    // What it writes into the panel's log is there to be read.
    if (!isScript() && &member == &Script::kAddToLog) return false;
    if (depth_ > 0) return true;
    return !isFlowing(member) && news;
}

bool Conversation::isWorthALine(const Event& event, std::span<const Value> arguments) {
    if (&event != &kRepeated) return true;
    const bool news = isNews(Script::eventText(event, arguments.first(1)), arguments.back());
    return news || detail_ == Detail::everything;
}

// Only of a property: to call a method again is no repetition.
bool Conversation::isNews(const Member& member, std::span<const Value> arguments) {
    if (member.kind != MemberKind::let) return true;
    return isNews(Script::commandText(member, arguments.first(arguments.size() - 1)),
                  arguments.back());
}

bool Conversation::isNews(const std::string& what, const Value& value) {
    if (lastSaid_.size() > kMostRemembered) lastSaid_.clear();
    const std::string text = Script::textOf(value);
    return std::exchange(lastSaid_[what], text) != text;
}

void Conversation::write(const std::string& text) {
    const bool isAfterPause = time_ - std::exchange(timeOfLastLine_, time_) >= kPause;
    if (isScript() && depth_ == 0 && isAfterPause) log_.add("# " + seconds(time_));
    const std::string indent(kIndent * static_cast<std::size_t>(depth_), ' ');
    log_.add((isScript() ? "" : clock_() + "  ") + indent + text);
}

}  // namespace Orvo::Manager
