#include "Script/host_side.h"

#include "Script/answers.h"
#include "Script/session.h"

namespace Orvo::Script::HostSide {
namespace {

std::string carriedOut(Session& session, const Call& call) {
    const InvokeResult result = session.bench().invoke(call.dispatchId, call.kind, call.arguments);
    if (result.error) throw Error(*result.error);
    return typeOf(result.value) == ValueType::none ? ok() : resultIs(textOf(result.value));
}

}  // namespace

std::string let(Session& session, const NamedCall<MemberKind::let>& member) {
    return carriedOut(session, member.call);
}

std::string get(Session& session, const NamedCall<MemberKind::get>& member) {
    return carriedOut(session, member.call);
}

std::string call(Session& session, const NamedCall<MemberKind::method>& member) {
    return carriedOut(session, member.call);
}

std::string invoke(Session& session, const LateCall& member) {
    return carriedOut(session, member.call);
}

std::string id(Session& /*session*/, const MemberName& member) {
    return resultIs(dispatchIdText(member.dispatchId));
}

std::string members(Session& session) {
    for (const Member& member : kMembers) {
        session.row(std::to_string(member.number) + ' ' + std::string(member.name) + ' ' +
                    std::string(nameOf(member.kind)) + ' ' + dispatchIdText(member.dispatchId));
    }
    return resultIs(std::to_string(kMembers.size()));
}

std::string events(Session& session) {
    for (const Event& event : kEvents) {
        std::string text = std::to_string(event.dispatchId) + ' ' + std::string(event.name);
        for (const Parameter& parameter : event.parameters())
            text.append(" ").append(parameter.name);
        session.row(text);
    }
    return resultIs(std::to_string(kEvents.size()));
}

std::string on(Session& session, const EventName& name, const Nested& command) {
    session.remember(*name.event, command.action);
    return ok();
}

std::string off(Session& session, const EventName& name) {
    session.forget(*name.event);
    return ok();
}

std::string renew(Session& session) {
    session.renew();
    return ok();
}

}  // namespace Orvo::Script::HostSide
