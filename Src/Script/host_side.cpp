#include "Script/host_side.h"

#include "Script/answers.h"
#include "Script/text_of.h"

namespace Orvo::Script::HostSide {

std::string call(Session& session, const Call& call) {
    session.permit(call);
    const InvokeResult result =
        session.owner().panel().invoke(call.dispatchId, call.kind, call.arguments);
    if (result.error) throw Error(*result.error);
    const bool isTold = session.isHeard() && typeOf(result.value) != ValueType::none;
    return isTold ? resultIs(textOf(result.value)) : ok();
}

std::string id(const Session& /*session*/, Long dispatchId) {
    return resultIs(dispatchIdText(dispatchId));
}

std::string members(const Session& session) {
    return listed(session, kMembers, [](const Member& member) {
        return std::to_string(member.number) + ' ' + std::string(member.name) + ' ' +
               std::string(nameOf(member.kind)) + ' ' + dispatchIdText(member.dispatchId);
    });
}

std::string events(const Session& session) {
    return listed(session, kEvents, [](const Event& event) {
        std::string text = std::to_string(event.dispatchId) + ' ' + std::string(event.name);
        for (const Parameter& parameter : event.parameters())
            text.append(" ").append(parameter.name);
        return text;
    });
}

}  // namespace Orvo::Script::HostSide
