#include "Orvo/core/late_binding.h"

#include <algorithm>

namespace Orvo {
namespace {

char lowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lowerCase(x) == lowerCase(y); });
}

}  // namespace

std::optional<Long> dispatchIdOf(std::string_view name) {
    for (const Member& member : kMembers) {
        if (equalIgnoringCase(member.name, name)) return member.dispatchId;
    }
    return std::nullopt;
}

const Member& findMember(Long dispatchId, MemberKind kind) {
    const Member* other = nullptr;
    for (const Member& member : kMembers) {
        if (member.dispatchId != dispatchId) continue;
        if (member.kind == kind) return member;
        other = &member;
    }
    const bool isProperty = other != nullptr && other->kind != MemberKind::method;
    if (isProperty && kind == MemberKind::let) throw Errors::setNotSupported();
    if (isProperty && kind == MemberKind::get) throw Errors::getNotSupported();
    throw Errors::noSuchMember();
}

std::vector<Value> convertArguments(const Member& member, std::span<const Value> arguments) {
    const auto parameters = member.parameters();
    if (arguments.size() != parameters.size()) throw Errors::wrongArgumentCount();
    std::vector<Value> converted(arguments.size());
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        converted[i] = convert(arguments[i], parameters[i].type);
    }
    return converted;
}

}  // namespace Orvo
