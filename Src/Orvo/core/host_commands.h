#pragma once

#include "Orvo/core/events.h"

namespace Orvo {

/// The buttons that do nothing themselves: each tells the host what a person asked for. The host
/// answers through the members, which is when a lamp changes.
class HostCommands {
public:
    explicit HostCommands(MarvaneAssistantEvents& host) : host_(host) {}

    void toggleMute(Integer channel) { host_.Mute(channel); }
    void readInternalData() { host_.DownLoad(); }

private:
    MarvaneAssistantEvents& host_;
};

}  // namespace Orvo
