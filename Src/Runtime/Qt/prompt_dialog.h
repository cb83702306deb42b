#pragma once

#include <QInputDialog>
#include <QPointer>

#include "Runtime/Store/store.h"

namespace Orvo::Window {

/// Asks in a modal dialog over the panel.
class PromptDialog final : public Runtime::Prompter {
public:
    explicit PromptDialog(QWidget& panel) : panel_(panel) {}

    /// Ends without an answer also when the panel goes away meanwhile, and this with it.
    std::optional<String> ask(const Widgets::Question& question) override;
    /// Cancels the dialog that is open, if any.
    void cancel();

private:
    QWidget& panel_;
    QPointer<QInputDialog> open_;
};

}  // namespace Orvo::Window
