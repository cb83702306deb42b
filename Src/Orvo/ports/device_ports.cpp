#include "Orvo/ports/device_ports.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <span>
#include <string>
#include <system_error>

#include "Orvo/ports/natural_order.h"
#include "Orvo/values/text.h"

namespace Orvo::Runtime {
namespace {

namespace fs = std::filesystem;

// What the kernel lists below sys/class that is a port.
struct DeviceClass {
    const char* directory;
    const char* prefix;
    const char* nodes;
    const char16_t* description;  // unless its product has one
};

// The serial ones first.
constexpr auto kDeviceClasses = std::to_array<DeviceClass>({
    {"tty", "", "/dev/", u"Serial port"},
    {"printer", "lp", "/dev/", u"Parallel port"},
    {"ppdev", "parport", "/dev/", u"Parallel port"},
    {"usbmisc", "lp", "/dev/usb/", u"USB printer"},
});

constexpr Long kPortType = PortSpooler::write | PortSpooler::read;

std::string firstLine(const fs::path& file) {
    std::string line;
    std::ifstream stream(file);
    if (!std::getline(stream, line)) return {};
    line.erase(line.find_last_not_of(" \t\r") + 1);
    return line;
}

std::string linkTargetName(const fs::path& link) {
    std::error_code error;
    return fs::read_symlink(link, error).filename().string();
}

// Recent kernels put devices of their own, whose drivers say nothing, between a UART and its port.
std::string driverOf(fs::path device) {
    while (linkTargetName(device / "subsystem") == "serial-base") device = device.parent_path();
    return linkTargetName(device / "driver");
}

// A USB device stands above its interfaces; it alone has a vendor. Above it stand hubs, whose
// product texts are not this port's.
std::string productOf(const fs::path& device) {
    std::error_code error;
    for (fs::path at = device; at.has_relative_path(); at = at.parent_path()) {
        if (fs::exists(at / "idVendor", error)) return firstLine(at / "product");
    }
    return {};
}

// The kernel writes a path's slashes as exclamation marks here.
std::string nodeOf(const DeviceClass& deviceClass, std::string entryName) {
    std::replace(entryName.begin(), entryName.end(), '!', '/');
    return deviceClass.nodes + entryName;
}

// Consoles and pseudo terminals have no device, an 8250 port that is not there has type 0. A
// container sees the machine's devices, but has no nodes of theirs.
void addPort(Ports& ports, const DeviceClass& deviceClass, const fs::path& entry,
             const fs::path& root) {
    const std::string name = entry.filename().string();
    std::error_code error;
    const fs::path device = fs::canonical(entry / "device", error);
    if (error || !name.starts_with(deviceClass.prefix) || firstLine(entry / "type") == "0") return;
    const std::string node = nodeOf(deviceClass, name);
    if (!fs::exists(root / fs::path(node).relative_path(), error)) return;
    const String product = fromUtf8(productOf(device));
    ports.push_back({fromUtf8(node), fromUtf8(driverOf(device)),
                     product.empty() ? deviceClass.description : product, kPortType});
}

Ports portsOf(std::span<const DeviceClass> classes, const fs::path& root) {
    Ports ports;
    for (const DeviceClass& deviceClass : classes) {
        std::error_code error;
        fs::directory_iterator entry(root / "sys/class" / deviceClass.directory, error);
        for (; entry != fs::directory_iterator(); entry.increment(error)) {
            addPort(ports, deviceClass, entry->path(), root);
        }
    }
    std::sort(ports.begin(), ports.end(), [](const PortRecord& left, const PortRecord& right) {
        return naturallyBefore(left.PortName, right.PortName);
    });
    return ports;
}

}  // namespace

Ports devicePorts(const fs::path& root) { return portsOf(kDeviceClasses, root); }

Ports serialPorts(const fs::path& root) {
    return portsOf(std::span(kDeviceClasses).first<1>(), root);
}

}  // namespace Orvo::Runtime
