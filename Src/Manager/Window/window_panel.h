#pragma once

#include "Orvo/window/panel_widget.h"
#include "Script/panel_owner.h"
#include "Script/person.h"

namespace Orvo::Manager {

/// A window's panel. The person's mouse and keyboard go to the window's controls.
class WindowPanel final : public Script::PanelOwner, public Script::Person {
public:
    explicit WindowPanel(Window::PanelWidget& window) : window_(window) {}

    MarvaneAssistant& panel() override { return window_.panel(); }
    Runtime::Store& store() override { return window_.store(); }
    void perform(const Runtime::Deed& deed) override;
    /// Error 75 when the file can't be written.
    void shoot(const String& file) override;

private:
    void exchange() override { window_.renew(); }
    [[nodiscard]] QWidget* controlFor(const Runtime::Deed& deed) const;

    Window::PanelWidget& window_;
};

}  // namespace Orvo::Manager
