#pragma once

#include "Orvo/core/events.h"
#include "Orvo/service/message_log.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// The number of the amplifier that the panel stands for. A pick in the list tells the host and
/// empties the log; a value that the host writes is only shown.
class AmplifierId {
public:
    AmplifierId(Widgets::WidgetTree& widgets, MessageLog& log, MarvaneAssistantEvents& host)
        : widgets_(widgets), log_(log), host_(host) {}

    /// Fills the list with 1 to 99 and takes the id from the text that is laid out.
    void fillList();
    void takeShownId();

    [[nodiscard]] Integer get() const { return intIdDevice; }
    void set(Integer id);

    void picked();
    /// Discards every key but carriage return: an id can't be typed.
    void keyPressed(Integer& keyCode);

private:
    Widgets::WidgetTree& widgets_;
    MessageLog& log_;
    MarvaneAssistantEvents& host_;
    Integer intIdDevice = 0;
};

}  // namespace Orvo
