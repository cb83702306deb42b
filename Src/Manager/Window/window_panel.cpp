#include "Manager/Window/window_panel.h"

#include <stdexcept>
#include <system_error>

#include <QAbstractButton>

#include "Manager/Window/files.h"
#include "Manager/Window/pictures.h"
#include "Manager/Window/pointed_input.h"
#include "Orvo/layout/layout.h"
#include "Orvo/window/drawing/text.h"

namespace Orvo::Manager {
namespace {

using Verb = Runtime::Deed::Verb;

// A key that doesn't work a button is of no use to it.
bool worksButton(const Runtime::Deed& deed) {
    switch (deed.verb) {
        case Verb::click:
        case Verb::release:
        case Verb::activate:
            return true;
        case Verb::key:
            return deed.number == '\r' || deed.number == ' ';
        default:
            return false;
    }
}

// A mere code is no key.
bool isTyped(const Runtime::Deed& deed) { return deed.verb == Verb::key && deed.number != 0; }

}  // namespace

void WindowPanel::shoot(const String& file) {
    try {
        write(Window::toQt(file), toPng(pictureOf(window_)), existing_);
    } catch (const std::system_error& failure) {
        if (failure.code() == std::errc::file_exists) throw Error(58, "File already exists");
        throw Error(75, "Path/File access error");
    } catch (const std::runtime_error&) {
        throw Error(75, "Path/File access error");
    }
}

void WindowPanel::perform(const Runtime::Deed& deed) {
    QWidget* control = controlFor(deed);
    if (control == nullptr) return Person::perform(deed);
    // The controls learn only with the next frame what they may do.
    window_.flush();
    switch (deed.verb) {
        case Verb::click:
            return clickOn(*control, deed.button, ReleasedWhere::onWidget);
        case Verb::release:
            return clickOn(*control, deed.button, ReleasedWhere::elsewhere);
        default:
            return typeInto(*control, deed.verb == Verb::activate ? u' ' : char16_t(deed.number));
    }
}

// Null when it is nothing for a control of the toolkit's.
QWidget* WindowPanel::controlFor(const Runtime::Deed& deed) const {
    const auto kind = Layout::kindOf(deed.widget);
    QWidget* control = window_.control(deed.widget);
    if (kind == Layout::Kind::list || kind == Layout::Kind::combo) {
        return isTyped(deed) ? control : nullptr;
    }
    return worksButton(deed) ? qobject_cast<QAbstractButton*>(control) : nullptr;
}

}  // namespace Orvo::Manager
