#pragma once

#include "Orvo/window/panel_widget.h"
#include "Script/files.h"
#include "Script/panel_owner.h"
#include "Script/person.h"

namespace Orvo::Manager {

/// A window's panel. The person's mouse and keyboard go to the window's controls.
class WindowPanel final : public Script::PanelOwner, public Script::Person {
public:
    /// What pictures do about files that are there already.
    explicit WindowPanel(Window::PanelWidget& window,
                         Script::Existing existing = Script::Existing::refused)
        : window_(window), existing_(existing) {}

    MarvaneAssistant& panel() override { return window_.panel(); }
    Runtime::Store& store() override { return window_.store(); }
    void perform(const Runtime::Deed& deed) override;
    /// Error 58 when the file exists already, unless such files are overwritten; 75 when it can't
    /// be written.
    void shoot(const String& file) override;

private:
    void exchange(const std::function<void()>& ending) override { window_.renew(ending); }
    [[nodiscard]] QWidget* controlFor(const Runtime::Deed& deed) const;

    Window::PanelWidget& window_;
    const Script::Existing existing_;
};

}  // namespace Orvo::Manager
