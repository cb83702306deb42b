#pragma once

/// What is called from outside of the library, whose other names are hidden. Whoever uses the
/// static libraries without their CMake or pkg-config files defines ORVO_STATIC_DEFINE.
#if defined(ORVO_STATIC_DEFINE) || defined(_WIN32)
#define ORVO_EXPORT
#else
#define ORVO_EXPORT __attribute__((visibility("default")))
#endif

/// What this project's other libraries call besides. It is in no public header, and no host's to
/// use.
#define ORVO_OWN_EXPORT ORVO_EXPORT
