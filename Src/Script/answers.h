#pragma once

#include <string>
#include <string_view>

#include "Script/session.h"

// The closing lines of commands that are done.
namespace Orvo::Script {

inline std::string ok() { return "ok"; }
inline std::string resultIs(std::string_view value) { return "= " + std::string(value); }

/// Of a listing, whose rows are written.
template <class Things, class TextOf>
std::string listed(const Session& session, const Things& things, const TextOf& textOf) {
    for (const auto& thing : things) session.row(textOf(thing));
    return resultIs(std::to_string(things.size()));
}

}  // namespace Orvo::Script
