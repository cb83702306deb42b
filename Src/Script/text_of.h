#pragma once

#include <span>
#include <string>
#include <string_view>

#include "Orvo/core/event_table.h"
#include "Orvo/core/member_table.h"
#include "Orvo/core/value.h"
#include "Orvo/values/error.h"
#include "Orvo/values/types.h"
#include "Orvo/widgets/widgets.h"

// Values as the language prints them; a word that is printed is read back as the same value.
namespace Orvo::Script {

/// In double quotes, with escapes.
std::string textOf(StringView text);
/// As it is, but for what would break the line or can't be seen, of which there are escapes.
std::string onOneLine(std::string_view text);
std::string textOf(Colour colour);
/// The shortest decimal form that reads back the same.
std::string textOf(float value);
std::string textOf(Widgets::Point point);
/// "NUMBER DESCRIPTION".
std::string textOf(const Error& error);
std::string textOf(const IntegerArray& array);
std::string textOf(const Value& value);
inline std::string_view textOf(bool truth) { return truth ? "true" : "false"; }

/// The command that calls the member: "let Mute 1 -1".
std::string commandText(const Member& member, std::span<const Value> arguments);

/// What is answered when the event is raised: "event Mute 1".
std::string eventText(const Event& event, std::span<const Value> arguments);

/// "0x" and eight digits.
std::string dispatchIdText(Long dispatchId);

std::string_view nameOf(ValueType type);
std::string_view nameOf(MemberKind kind);

/// A piece of a line, as a complaint quotes it: shortened when it is long.
std::string excerpt(std::string_view source);

}  // namespace Orvo::Script
