#include "Orvo/core/late_binding.h"

#include "Orvo/values/ignoring_case.h"

namespace Orvo {

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
