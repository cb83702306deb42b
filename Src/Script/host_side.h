#pragma once

#include <string>

#include "Script/argument_types.h"

// The host's commands. Each function returns its closing line.
namespace Orvo::Script::HostSide {

std::string call(Session& session, const Call& call);
std::string id(Session& session, Long dispatchId);
std::string members(Session& session);
std::string events(Session& session);
std::string on(Session& session, const Event* event, const ParsedCommand& command);
std::string off(Session& session, const Event* event);
std::string renew(Session& session);

}  // namespace Orvo::Script::HostSide
