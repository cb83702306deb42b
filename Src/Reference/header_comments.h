#pragma once

#include <string>

// The comments of the panel's headers. Every line that begins with "///" there comes from the
// contracts; what is declared, and in which order, is the headers' own.
namespace Orvo::Script {

/// interface.h with its comments. Throws when it doesn't declare the members in interface order.
std::string withMemberContracts(const std::string& header);

/// events.h with its comments. Throws when it doesn't declare the events by dispatch id.
std::string withEventContracts(const std::string& header);

}  // namespace Orvo::Script
