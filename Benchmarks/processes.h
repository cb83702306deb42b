#pragma once

#include <string>
#include <string_view>

#include "row.h"

// What is measured in a process of its own.
namespace Orvo::Benchmarks {

constexpr auto kFirstPicture = "--first-picture";

enum class Since { start, application };

/// The CPU time of a fresh process until a window's first picture, since its start or since the
/// toolkit was ready. Windows: "panel", "widgets", "manager" and "empty".
Contender firstPicture(const std::string& window, Since since);

/// What such a process does: this program, started with kFirstPicture and the window's name.
int showFirstPicture(std::string_view name);

}  // namespace Orvo::Benchmarks
