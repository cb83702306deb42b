#pragma once

#include <chrono>

#include "Orvo/ports/port_records.h"
#include "Orvo/store/store.h"
#include "Orvo/values/error.h"

namespace Orvo::Script {

/// Whoever sits in front of a panel, and what they can do there.
class Person {
public:
    virtual ~Person() = default;

    /// Of the present panel.
    virtual Runtime::Store& store() = 0;

    virtual void perform(const Runtime::Deed& deed) { store().perform(deed); }
    /// Does nothing for so long; timers that come due tick.
    virtual void wait(std::chrono::milliseconds time) { store().advance(time); }

    /// An event or a prompt comes in the midst of something.
    virtual void startMidst() {}
    /// Whether what is done in that midst may go on; what is left of it is left out.
    virtual bool hasTime() { return true; }

    /// Writes a PNG picture of the panel. Throws Error when that fails, or there is no window.
    virtual void shoot(const String& /*file*/) {
        throw Error(70, "There is no window to take a picture of");
    }
    /// The ports that the print spooler has from now on; without any its enumeration fails. Throws
    /// Error where the spooler is a machine's.
    virtual void connectPorts(const Runtime::Ports& /*ports*/) {
        throw Error(70, "The ports are the machine's");
    }
};

}  // namespace Orvo::Script
