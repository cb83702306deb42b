#include "Manager/Session/session_log.h"

#include <array>
#include <ctime>
#include <utility>
#include <vector>

#include "Orvo/core/member_table.h"
#include "Orvo/layout/roles.h"
#include "Orvo/store/stored_widgets.h"
#include "Orvo/values/text.h"
#include "Script/message_log.h"

namespace Orvo::Manager {
namespace {

constexpr std::size_t kDateLength = std::string_view("2026-03-14 ").size();

// A line of a text from outside stays one, and moves no terminal's cursor.
String onOneLine(String text) {
    constexpr char16_t kSigns = u'\u2400';
    for (char16_t& unit : text) {
        if (unit < u' ' && unit != u'\t') unit = char16_t(kSigns + unit);
        const bool isControl = unit >= u'\x7F' && unit <= u'\x9F';
        if (isControl || unit == u'\u2028' || unit == u'\u2029') unit = u'\uFFFD';
    }
    return text;
}

}  // namespace

std::string localTime(std::chrono::system_clock::time_point time) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    std::tm parts{};
    localtime_r(&seconds, &parts);
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &parts)};
}

std::string timeOfDay(std::chrono::system_clock::time_point time) {
    return localTime(time).substr(kDateLength);
}

SessionLog::SessionLog(Script::PanelOwner& owner, const std::string& path, Clock clock)
    : owner_(owner),
      file_(path),
      clock_(std::move(clock)),
      renewals_(owner.onRenewed([this] { hear(); })) {
    hear();
}

void SessionLog::add(std::string_view text) {
    const std::string now = localTime(clock_());
    const std::string repeated = now.substr(kDateLength) + "  ";
    if (text.starts_with(repeated)) text.remove_prefix(repeated.size());
    file_.append(now + "  " + toUtf8(onOneLine(fromUtf8(text))) + '\n');
}

std::optional<std::string> SessionLog::flush() {
    file_.flush();
    return file_.takeFailure();
}

void SessionLog::called(const Member& member, std::span<const Value> arguments) {
    if (&member == &Script::kAddToLog) add(mark_ + toUtf8(std::get<String>(arguments[0])));
}

// What is written again is nothing new.
void SessionLog::shorten() {
    const auto& lines = owner_.store().get<Runtime::StoredList>(Layout::kCommon.log).state().items;
    if (lines.size() <= kMostShown) return;
    const std::vector<String> last(lines.end() - kLeftShown, lines.end());
    calls_ = {};
    owner_.panel().CancellaTesto();
    for (const String& line : last) owner_.panel().AggiugiTesto(line);
    hear();
}

}  // namespace Orvo::Manager
