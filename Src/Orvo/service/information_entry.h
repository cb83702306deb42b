#pragma once

#include "Orvo/core/events.h"
#include "Orvo/service/amplifier_id.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// Lets service staff enter an amplifier's serial numbers and information, behind a password, and
/// hands them to the host. Nothing of it is kept.
class InformationEntry {
public:
    InformationEntry(Widgets::WidgetTree& widgets, Widgets::InputPrompt& prompt, AmplifierId& id,
                     MarvaneAssistantEvents& host)
        : widgets_(widgets), prompt_(prompt), id_(id), host_(host) {}

    /// The key that starts the entry when it is typed in the log: Ctrl+R.
    static constexpr Integer kStartKey = 18;

    /// Two tries at the password, then the three prompts, then GeneralInformations.
    void start();
    void keyPressed(Integer& keyCode);

private:
    [[nodiscard]] bool knowsPassword();
    void askAndRaise();

    Widgets::WidgetTree& widgets_;
    Widgets::InputPrompt& prompt_;
    AmplifierId& id_;
    MarvaneAssistantEvents& host_;
};

}  // namespace Orvo
