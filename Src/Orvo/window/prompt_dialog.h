#pragma once

#include "Orvo/store/store.h"

namespace Orvo::Window {

class PanelScreen;

/// Asks in a modal dialog over the panel, as large as that.
class PromptDialog final : public Runtime::Prompter {
public:
    explicit PromptDialog(PanelScreen& panel) : panel_(panel) {}

    /// Throws Widgets::PromptWithdrawn when the panel goes away or out of sight meanwhile, or isn't
    /// in sight at all. In the first case this has gone with it.
    std::optional<String> ask(const Widgets::Question& question) override;
    /// Takes the dialogs that are open away, if there are any.
    void withdraw();

private:
    PanelScreen& panel_;
};

}  // namespace Orvo::Window
