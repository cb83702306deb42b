#include "Manager/Link/link_address.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

#include <termios.h>

namespace Orvo::Manager {
namespace {

constexpr auto kSpeeds = std::to_array<std::pair<unsigned, speed_t>>({
    {300, B300},
    {600, B600},
    {1200, B1200},
    {2400, B2400},
    {4800, B4800},
    {9600, B9600},
    {19200, B19200},
    {38400, B38400},
    {57600, B57600},
    {115200, B115200},
    {230400, B230400},
#ifdef B460800
    {460800, B460800},
#endif
#ifdef B921600
    {921600, B921600},
#endif
});

std::optional<unsigned> numberIn(std::string_view text) {
    unsigned number = 0;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (text.empty() || error != std::errc() || rest != end) return std::nullopt;
    return number;
}

}  // namespace

std::optional<unsigned> speedConstant(unsigned bitsPerSecond) {
    const auto* row = std::find_if(kSpeeds.begin(), kSpeeds.end(),
                                   [&](const auto& speed) { return speed.first == bitsPerSecond; });
    if (row == kSpeeds.end()) return std::nullopt;
    return row->second;
}

std::optional<LinkAddress> LinkAddress::read(const std::string& text) {
    const std::size_t at = text.rfind('@');
    const auto speed =
        at == std::string::npos ? std::nullopt : numberIn(std::string_view(text).substr(at + 1));
    LinkAddress address{speed ? text.substr(0, at) : text, speed};
    if (address.path.empty() || (speed && !speedConstant(*speed))) return std::nullopt;
    return address;
}

std::string LinkAddress::text() const { return speed ? path + '@' + std::to_string(*speed) : path; }

}  // namespace Orvo::Manager
