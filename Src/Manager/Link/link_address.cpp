#include "Manager/Link/link_address.h"

#include <charconv>

namespace Orvo::Manager {
namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kParities = "NEOMS";  // in the order of Parity
constexpr std::string_view kUsualFormat = "8N1";

std::optional<unsigned> numberIn(std::string_view text) {
    unsigned number = 0;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (text.empty() || error != std::errc() || rest != end) return std::nullopt;
    return number;
}

// A number, and perhaps a comma with more.
bool isMeantForLine(std::string_view text) {
    const auto rest = text.find_first_not_of(kDigits);
    return !text.empty() && rest != 0 && (rest == std::string_view::npos || text[rest] == ',');
}

bool isFormat(std::string_view text) {
    return text.size() == 3 && text[0] >= '5' && text[0] <= '8' &&
           kParities.find(text[1]) != std::string_view::npos && (text[2] == '1' || text[2] == '2');
}

unsigned digit(char character) { return static_cast<unsigned>(character - '0'); }

}  // namespace

std::optional<LineSettings> LineSettings::read(std::string_view text) {
    const auto comma = text.find(',');
    const auto speed = numberIn(text.substr(0, comma));
    const auto format = comma == std::string_view::npos ? kUsualFormat : text.substr(comma + 1);
    if (!speed || *speed < kSlowest || *speed > kFastest || !isFormat(format)) return std::nullopt;
    return LineSettings{.speed = *speed,
                        .dataBits = digit(format[0]),
                        .parity = static_cast<Parity>(kParities.find(format[1])),
                        .stopBits = digit(format[2])};
}

std::string LineSettings::text() const {
    const std::string format = this->format();
    return std::to_string(speed) + (format == kUsualFormat ? "" : ',' + format);
}

std::string LineSettings::format() const {
    return std::to_string(dataBits) + kParities[static_cast<std::size_t>(parity)] +
           std::to_string(stopBits);
}

std::optional<LinkAddress> LinkAddress::read(const std::string& text) {
    const auto at = text.rfind('@');
    const std::string line = at == std::string::npos ? "" : text.substr(at + 1);
    if (!isMeantForLine(line)) {
        return text.empty() ? std::nullopt : std::optional(LinkAddress{text});
    }
    LinkAddress address{text.substr(0, at), LineSettings::read(line)};
    if (address.path.empty() || !address.line) return std::nullopt;
    return address;
}

std::string LinkAddress::text() const { return line ? path + '@' + line->text() : path; }

}  // namespace Orvo::Manager
