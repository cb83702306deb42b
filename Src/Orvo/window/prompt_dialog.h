#pragma once

#include <QInputDialog>
#include <QPointer>

#include "Orvo/store/store.h"

namespace Orvo::Window {

/// Asks in a modal dialog over the panel.
class PromptDialog final : public Runtime::Prompter {
public:
    explicit PromptDialog(QWidget& panel) : panel_(panel) {}

    /// Throws Widgets::PromptWithdrawn when the panel goes away or out of sight meanwhile, or isn't
    /// in sight at all. In the first case this has gone with it.
    std::optional<String> ask(const Widgets::Question& question) override;
    /// Takes the dialog that is open away, if there is one.
    void withdraw();

private:
    QWidget& panel_;
    QPointer<QInputDialog> open_;
};

}  // namespace Orvo::Window
