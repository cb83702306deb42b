#pragma once

#include <cstddef>

#include "Orvo/store/store.h"
#include "Script/argument_types.h"

// The panel's message log, which grows as long as a host adds to it.
namespace Orvo::Script {

/// What adds to it.
inline constexpr const Member& kAddToLog = memberNamed<String>("AggiugiTesto");

/// A call's only argument as the member takes it. Throws Error when it can't be converted.
template <class Type>
Type argumentOf(const Call& call, const Member& member) {
    return std::get<Type>(convert(call.arguments.front(), member.parameters().front().type));
}

/// What the call adds to it, in bytes. Throws Error for what is no text.
std::size_t bytesLogged(const Call& call);
/// What is in it, in bytes.
std::size_t bytesOfLog(const Runtime::Store& store);

}  // namespace Orvo::Script
