#include "Manager/Station/event_log.h"

#include <string_view>
#include <utility>

namespace Orvo::Manager {
namespace {

constexpr std::string_view kEllipsis = "…";

bool continuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

std::string shortened(std::string line) {
    if (line.size() <= EventLog::kLongestLine) return line;
    std::size_t end = EventLog::kLongestLine - kEllipsis.size();
    while (end > 0 && continuesCharacter(line[end])) --end;
    line.resize(end);
    return line.append(kEllipsis);
}

}  // namespace

void EventLog::add(std::string line) {
    if (lines_.size() == kMostLines) lines_.pop_front();
    lines_.push_back(shortened(std::move(line)));
    ++added_;
}

void EventLog::clear() {
    lines_.clear();
    ++clears_;
}

}  // namespace Orvo::Manager
