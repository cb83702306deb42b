#pragma once

#include <functional>
#include <vector>

#include <QString>

namespace Orvo::Manager {

/// A port that a person may choose.
struct OfferedPort {
    QString path;         ///< "/dev/ttyUSB0"
    QString description;  ///< "USB-Serial Controller"
    QString access;       ///< as of `accessTo`

    bool operator==(const OfferedPort&) const = default;
};

using PortOffer = std::function<std::vector<OfferedPort>()>;

/// The serial ports of this machine, in natural order. Opens none and waits for nothing.
std::vector<OfferedPort> offeredPorts();

/// That nothing is in the way, in words.
QString mayBeOpened();

/// Who may open a port, in words: `mayBeOpened`, or what is in the way.
QString accessTo(const QString& path);

/// Who may open what is there, if the person may not, in words; else empty.
QString obstacleTo(const QString& path);

}  // namespace Orvo::Manager
