#pragma once

#include <string>

#include "Script/argument_types.h"

// The host's commands that aren't the session's own. Each function returns its closing line.
namespace Orvo::Script::HostSide {

std::string call(Session& session, const Call& call);
std::string id(Session& session, Long dispatchId);
std::string members(Session& session);
std::string events(Session& session);

}  // namespace Orvo::Script::HostSide
