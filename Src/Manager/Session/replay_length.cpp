#include "Manager/Session/replay_length.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "Script/files.h"

namespace Orvo::Manager {
namespace {

// A few hundred megabytes within half a minute, a fraction of a millisecond at a time.
constexpr std::size_t kLooked = 262144;  // bytes
constexpr std::string_view kWait = "wait ";

}  // namespace

ReplayLength::ReplayLength(const std::filesystem::path& script) {
    try {
        file_ = Script::openRegular(script);
    } catch (const std::runtime_error&) {
        isRead_ = true;
    }
}

void ReplayLength::look() {
    if (isRead_) return;
    std::vector<char> bytes(kLooked);
    const std::size_t count = Script::readFrom(file_, bytes);
    lines_.add({bytes.data(), count});
    while (const auto line = lines_.next()) add(line->text);
    isRead_ = count == 0;
}

void ReplayLength::add(const std::string& line) {
    if (!line.starts_with(kWait)) return;
    std::int32_t time = 0;
    std::from_chars(line.data() + kWait.size(), line.data() + line.size(), time);
    total_ += std::chrono::milliseconds(std::max(time, 0));
}

std::optional<std::chrono::milliseconds> ReplayLength::total() const {
    return isRead_ ? std::optional(total_) : std::nullopt;
}

}  // namespace Orvo::Manager
