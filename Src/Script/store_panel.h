#pragma once

#include <memory>

#include "Script/panel_owner.h"
#include "Script/person.h"

namespace Orvo::Script {

/// A panel on the store alone: no window, and a clock that only the person's waiting moves.
class StorePanel : public PanelOwner, public Person {
public:
    StorePanel();

    MarvaneAssistant& panel() override { return *panel_; }
    Runtime::Store& store() override { return *store_; }
    void connectPorts(const Runtime::Ports& ports) override;

private:
    class Spooler;

    void exchange(const std::function<void()>& ending) override;

    std::shared_ptr<Runtime::Store> store_;
    std::shared_ptr<Spooler> spooler_;  // the machine's: a fresh panel has the same
    std::unique_ptr<MarvaneAssistant> panel_;
};

}  // namespace Orvo::Script
