#pragma once

#include <string>

#include "Script/argument_types.h"

// The host's commands that aren't the session's own. Each function returns its closing line.
namespace Orvo::Script::HostSide {

std::string call(Session& session, const Call& call);
std::string id(const Session& session, Long dispatchId);
std::string members(const Session& session);
std::string events(const Session& session);

}  // namespace Orvo::Script::HostSide
