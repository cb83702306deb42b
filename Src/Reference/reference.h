#pragma once

#include <string>

// The reference pages, written from the tables.
namespace Orvo::Script {

/// Docs/panel-script.md: the language.
std::string scriptReference();

/// Docs/interface.md: the members and events of the panel.
std::string interfaceReference();

}  // namespace Orvo::Script
