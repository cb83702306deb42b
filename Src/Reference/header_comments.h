#pragma once

#include <cstddef>
#include <string>

// The comments of the panel's headers. Every line that begins with "///" there comes from the
// contracts; what is declared, and in which order, is the headers' own.
namespace Orvo::Script {

/// Paragraphs, a line of the text each, whose words are wrapped behind a margin.
std::string wrapped(const std::string& text, const std::string& margin);

/// A comment of this text, wrapped; each line of it is a paragraph.
std::string comment(const std::string& text, std::size_t indent);

/// interface.h with its comments. Throws when it doesn't declare the members in interface order.
std::string withMemberContracts(const std::string& header);

/// events.h with its comments. Throws when it doesn't declare the events by dispatch id.
std::string withEventContracts(const std::string& header);

}  // namespace Orvo::Script
