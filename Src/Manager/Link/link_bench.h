#pragma once

#include "Console/bench.h"
#include "Orvo/core/marvane_assistant.h"

namespace Orvo::Manager {

/// A panel for whoever may only play its host: there is no person to command, there are no widgets
/// to look at, and the panel can't be exchanged for another.
class LinkBench final : public Console::Bench {
public:
    /// Events come from `panel`, calls go to `calls`. The panel's run-time errors that nobody waits
    /// for, and its prompts, are its owner's.
    LinkBench(MarvaneAssistant& panel, MarvaneAssistantInterface& calls);

    void tell(Console::PanelListener* listener) override { listener_ = listener; }
    InvokeResult invoke(Long dispatchId, MemberKind kind,
                        std::span<const Value> arguments) override;
    Console::Person& person() override;
    Runtime::Store& widgets() override;
    void renew() override;
    void shoot(const String& file) override;

private:
    MarvaneAssistantInterface& calls_;
    Console::PanelListener* listener_ = nullptr;
    Connection events_;
};

}  // namespace Orvo::Manager
