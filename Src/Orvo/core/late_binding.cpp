#include "Orvo/core/late_binding.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "Orvo/values/ignoring_case.h"

namespace Orvo {
namespace {

constexpr std::size_t kKinds = 3;
constexpr std::size_t kPlaces = 256;

constexpr std::size_t placeOf(Long dispatchId, MemberKind kind) {
    return static_cast<std::size_t>(kind) * kPlaces + static_cast<std::uint8_t>(dispatchId);
}

// A member's number by its kind and the last byte of its dispatch id, which no two share; 0 where
// there is none.
constexpr auto kNumbers = [] {
    std::array<std::uint8_t, kKinds * kPlaces> numbers{};
    for (const Member& member : kMembers) {
        auto& number = numbers[placeOf(member.dispatchId, member.kind)];
        if (number != 0) throw "two members share a place";
        number = static_cast<std::uint8_t>(member.number);
    }
    return numbers;
}();

const Member* find(Long dispatchId, MemberKind kind) {
    const std::size_t number = kNumbers[placeOf(dispatchId, kind)];
    if (number == 0) return nullptr;
    const Member& member = kMembers[number - 1];
    return member.dispatchId == dispatchId ? &member : nullptr;
}

}  // namespace

std::optional<Long> dispatchIdOf(std::string_view name) {
    for (const Member& member : kMembers) {
        if (equalIgnoringCase(member.name, name)) return member.dispatchId;
    }
    return std::nullopt;
}

const Member& findMember(Long dispatchId, MemberKind kind) {
    if (const Member* member = find(dispatchId, kind)) return *member;
    if (kind == MemberKind::let && find(dispatchId, MemberKind::get) != nullptr) {
        throw Errors::setNotSupported();
    }
    if (kind == MemberKind::get && find(dispatchId, MemberKind::let) != nullptr) {
        throw Errors::getNotSupported();
    }
    throw Errors::noSuchMember();
}

}  // namespace Orvo
