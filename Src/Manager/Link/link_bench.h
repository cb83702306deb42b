#pragma once

#include <functional>

#include "Orvo/core/marvane_assistant.h"
#include "Script/bench.h"

namespace Orvo::Manager {

/// A panel for whoever may only play its host: there is no person to command, and there are no
/// widgets to look at.
class LinkBench final : public Script::Bench {
public:
    /// The panel's run-time errors that nobody waits for, and its prompts, are its owner's.
    /// `renew` puts a fresh panel in the place of this one and then calls `connect`.
    LinkBench(MarvaneAssistant& panel, std::function<void()> renew);

    /// Hears the panel's events, from here on.
    void connect();

    void tell(Script::PanelListener* listener) override { listener_ = listener; }
    InvokeResult invoke(Long dispatchId, MemberKind kind,
                        std::span<const Value> arguments) override;
    Script::Person& person() override;
    Runtime::Store& widgets() override;
    void renew() override { renew_(); }
    void shoot(const String& file) override;

private:
    MarvaneAssistant& panel_;
    std::function<void()> renew_;
    Script::PanelListener* listener_ = nullptr;
    Connection events_;
};

}  // namespace Orvo::Manager
