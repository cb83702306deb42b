#pragma once

#include "Orvo/widgets/runtime.h"

namespace Orvo {

/// The message log: lines that the host writes, kept by the list alone.
class MessageLog {
public:
    explicit MessageLog(Widgets::Runtime& widgets) : widgets_(widgets) {}

    void add(const String& line);
    void clear();

private:
    Widgets::Runtime& widgets_;
};

}  // namespace Orvo
