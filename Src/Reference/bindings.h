#pragma once

#include <string>

// What other languages are given of the tables.
namespace Orvo::Script {

/// orvo_ids.h: the ids and kinds of members and events, and the types of values, in C.
std::string cIds();

/// _members.py: the members as properties and methods, and a subscriber for each event, in Python.
std::string pythonMembers();

}  // namespace Orvo::Script
