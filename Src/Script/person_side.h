#pragma once

#include <string>

#include "Script/argument_types.h"

// The person's commands. Each function returns its closing line.
namespace Orvo::Script::PersonSide {

std::string perform(Session& session, const Runtime::Deed& deed);
std::string answer(Session& session, const std::optional<String>& text);
std::string meanwhile(Session& session, const ParsedCommand& command);
std::string resume(Session& session);
std::string wait(Session& session, std::chrono::milliseconds time);

}  // namespace Orvo::Script::PersonSide
