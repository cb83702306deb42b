#pragma once

#include "Script/panel_bench.h"

namespace Orvo::Script {

/// A panel on the store alone: no window, and a clock that only the person's waiting moves.
class StoreBench final : public PanelBench {
public:
    StoreBench();

    void renew() override;
    void shoot(const String& file) override;

private:
    std::unique_ptr<MarvaneAssistant> panel_;
};

}  // namespace Orvo::Script
