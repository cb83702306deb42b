#include "Orvo/ports/device_ports.h"

#include <gtest/gtest.h>

#include "Support/spooler.h"
#include "Support/temporary_directory.h"

namespace Orvo::Tests {
namespace {

using Lines = std::vector<std::string>;

struct TreeCase {
    const char* label;
    std::initializer_list<std::string> tree;
    Lines ports;
};

// Those of what is no port, too.
const std::initializer_list<std::string> kNodes = {
    "dev/ptmx = ",      "dev/tty1 = ",        "dev/ttyS = ",    "dev/ttyS0 = ",   "dev/ttyS1 = ",
    "dev/ttyS2 = ",     "dev/ttyS02 = ",      "dev/ttyS2a = ",  "dev/ttyS3 = ",   "dev/ttyS4 = ",
    "dev/ttyS10 = ",    "dev/ttyA10 = ",      "dev/lp0 = ",     "dev/usb/lp1 = ", "dev/parport0 = ",
    "dev/rack/tty3 = ", "dev/usb/hiddev0 = ", "dev/ttyUSB0 = ", "dev/ttyACM0 = "};

const TreeCase kTrees[] = {
    {"nothing", {}, {}},
    {"what has no node",
     {"sys/devices/a/", "sys/class/tty/ttyS8/device -> sys/devices/a",
      "sys/class/tty/ttyS0/device -> sys/devices/a"},
     {"/dev/ttyS0, , Serial port, 3"}},
    {"UART on a recent kernel, with devices between it and its port",
     {"sys/devices/pnp0/00:00/00:00:0/00:00:0.0/subsystem -> sys/bus/serial-base",
      "sys/devices/pnp0/00:00/00:00:0/00:00:0.0/driver -> sys/bus/serial-base/drivers/port",
      "sys/devices/pnp0/00:00/00:00:0/subsystem -> sys/bus/serial-base",
      "sys/devices/pnp0/00:00/subsystem -> sys/bus/pnp",
      "sys/devices/pnp0/00:00/driver -> sys/bus/pnp/drivers/serial",
      "sys/class/tty/ttyS0/type = 4\n",
      "sys/class/tty/ttyS0/device -> sys/devices/pnp0/00:00/00:00:0/00:00:0.0"},
     {"/dev/ttyS0, serial, Serial port, 3"}},
    {"8250 ports that are not there, consoles and pseudo terminals",
     {"sys/devices/platform/serial8250/driver -> sys/bus/platform/drivers/serial8250",
      "sys/class/tty/ttyS0/device -> sys/devices/platform/serial8250",
      "sys/class/tty/ttyS0/type = 4\n",
      "sys/class/tty/ttyS1/device -> sys/devices/platform/serial8250",
      "sys/class/tty/ttyS1/type = 0\n", "sys/class/tty/tty1/active = x", "sys/class/tty/ptmx/"},
     {"/dev/ttyS0, serial8250, Serial port, 3"}},
    {"USB adapters, one without a product text below a hub that has one",
     {"sys/devices/usb1/idVendor = 1d6b\n", "sys/devices/usb1/product = Root hub\n",
      "sys/devices/usb1/1-1/idVendor = 0403\n", "sys/devices/usb1/1-1/product = FT232R USB UART \n",
      "sys/devices/usb1/1-1/1-1:1.0/ttyUSB0/driver -> sys/bus/usb-serial/drivers/ftdi_sio",
      "sys/devices/usb1/1-2/idVendor = 2341\n",
      "sys/devices/usb1/1-2/1-2:1.0/driver -> sys/bus/usb/drivers/cdc_acm",
      "sys/class/tty/ttyUSB0/device -> sys/devices/usb1/1-1/1-1:1.0/ttyUSB0",
      "sys/class/tty/ttyACM0/device -> sys/devices/usb1/1-2/1-2:1.0"},
     {"/dev/ttyACM0, cdc_acm, Serial port, 3", "/dev/ttyUSB0, ftdi_sio, FT232R USB UART, 3"}},
    {"parallel ports and USB printers",
     {"sys/devices/pnp0/00:05/driver -> sys/bus/pnp/drivers/parport_pc",
      "sys/class/printer/lp0/device -> sys/devices/pnp0/00:05",
      "sys/class/ppdev/parport0/device -> sys/devices/pnp0/00:05",
      "sys/devices/usb1/1-3/1-3:1.0/driver -> sys/bus/usb/drivers/usblp",
      "sys/class/usbmisc/lp1/device -> sys/devices/usb1/1-3/1-3:1.0",
      "sys/class/usbmisc/hiddev0/device -> sys/devices/usb1/1-3/1-3:1.0"},
     {"/dev/lp0, parport_pc, Parallel port, 3", "/dev/parport0, parport_pc, Parallel port, 3",
      "/dev/usb/lp1, usblp, USB printer, 3"}},
    {"numbers in their order",
     {"sys/devices/a/", "sys/class/tty/ttyS10/device -> sys/devices",
      "sys/class/tty/ttyS2/device -> sys/devices", "sys/class/tty/ttyS02/device -> sys/devices",
      "sys/class/tty/ttyS/device -> sys/devices", "sys/class/tty/ttyS2a/device -> sys/devices",
      "sys/class/tty/ttyA10/device -> sys/devices",
      "sys/class/tty/rack!tty3/device -> sys/devices"},
     {"/dev/rack/tty3, , Serial port, 3", "/dev/ttyA10, , Serial port, 3",
      "/dev/ttyS, , Serial port, 3", "/dev/ttyS02, , Serial port, 3",
      "/dev/ttyS2, , Serial port, 3", "/dev/ttyS2a, , Serial port, 3",
      "/dev/ttyS10, , Serial port, 3"}},
    {"what is broken",
     {"sys/class/printer = no directory", "sys/class/tty/ttyS0/device -> gone",
      "sys/class/tty/ttyS1/device -> sys/class/tty/ttyS1/device", "sys/class/tty/ttyS2 -> gone",
      "sys/devices/u1/idVendor = 1", "sys/devices/u1/product/",
      "sys/class/tty/ttyS3/device -> sys/devices/u1", "sys/class/tty/ttyS3/type/",
      "sys/devices/u2/idVendor = 1", "sys/devices/u2/product = \xC3\xA4\xFF\t\x01\n",
      "sys/class/tty/ttyS4/device -> sys/devices/u2", "sys/devices/u2/driver = no link"},
     {"/dev/ttyS3, , Serial port, 3", "/dev/ttyS4, , ä\uFFFD\t\x01, 3"}},
};

TEST(DevicePortsTest, AreThoseThatTheTreeShows) {
    for (const TreeCase& treeCase : kTrees) {
        const TemporaryDirectory root;
        root.add(kNodes);
        root.add(treeCase.tree);
        EXPECT_EQ(shown(Runtime::devicePorts(root.path())), treeCase.ports) << treeCase.label;
        const bool isSerial =
            treeCase.ports.empty() || treeCase.ports[0].find("/lp") == std::string::npos;
        EXPECT_EQ(shown(Runtime::serialPorts(root.path())), isSerial ? treeCase.ports : Lines())
            << treeCase.label;
    }
}

}  // namespace
}  // namespace Orvo::Tests
