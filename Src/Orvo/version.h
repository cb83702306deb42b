#pragma once

/// The version of these headers: "major.minor.patch". Within a major version libraries stay
/// compatible, binary and in source.
#define ORVO_VERSION_MAJOR 1
#define ORVO_VERSION_MINOR 0
#define ORVO_VERSION_PATCH 0
#define ORVO_VERSION "1.0.0"
