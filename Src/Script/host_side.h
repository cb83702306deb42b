#pragma once

#include <string>

#include "Script/argument_types.h"

// The host's commands. Each function returns its closing line.
namespace Orvo::Script::HostSide {

std::string let(Session& session, const NamedCall<MemberKind::let>& member);
std::string get(Session& session, const NamedCall<MemberKind::get>& member);
std::string call(Session& session, const NamedCall<MemberKind::method>& member);
std::string invoke(Session& session, const LateCall& member);
std::string id(Session& session, const MemberName& member);
std::string members(Session& session);
std::string events(Session& session);
std::string on(Session& session, const EventName& name, const Nested& command);
std::string off(Session& session, const EventName& name);
std::string renew(Session& session);

}  // namespace Orvo::Script::HostSide
