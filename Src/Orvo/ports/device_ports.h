#pragma once

#include <filesystem>

#include "Orvo/ports/port_records.h"

namespace Orvo::Runtime {

/// The serial and parallel ports that the system knows, by name in natural order. They are read
/// from the device tree (sys/class and what it links to) below `root`, which is "/" but in tests.
/// What has no device node (dev) there can be opened by nobody and is no port.
///
/// A port is named by its device node as a user would type it, its monitor by its driver, and it is
/// described by the product text of a USB device. What cannot be read is left out or, if it is a
/// text, empty.
Ports devicePorts(const std::filesystem::path& root);
/// Those of them that are serial.
Ports serialPorts(const std::filesystem::path& root);

}  // namespace Orvo::Runtime
