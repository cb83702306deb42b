#include "Script/host_side.h"

#include "Script/answers.h"
#include "Script/session.h"
#include "Script/text_of.h"

namespace Orvo::Script::HostSide {

std::string call(Session& session, const Call& call) {
    const InvokeResult result =
        session.owner().panel().invoke(call.dispatchId, call.kind, call.arguments);
    if (result.error) throw Error(*result.error);
    return typeOf(result.value) == ValueType::none ? ok() : resultIs(textOf(result.value));
}

std::string id(Session& /*session*/, Long dispatchId) {
    return resultIs(dispatchIdText(dispatchId));
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

std::string on(Session& session, const Event* event, const ParsedCommand& command) {
    session.remember(*event, command);
    return ok();
}

std::string off(Session& session, const Event* event) {
    session.forget(*event);
    return ok();
}

std::string renew(Session& session) {
    session.renew();
    return ok();
}

}  // namespace Orvo::Script::HostSide
