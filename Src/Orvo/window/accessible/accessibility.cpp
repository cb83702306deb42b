#include "Orvo/window/accessible/accessibility.h"

#include <array>

#include "Orvo/window/accessible/control_accessible.h"
#include "Orvo/window/accessible/log_accessible.h"
#include "Orvo/window/accessible/page_accessible.h"
#include "Orvo/window/spoken/spoken.h"

namespace Orvo::Window {

namespace {

template <class Widget, class Accessible>
QAccessibleInterface* makeFor(QObject* object) {
    auto* widget = dynamic_cast<Widget*>(object);
    return widget != nullptr ? new Accessible(*widget) : nullptr;
}

constexpr auto kMakers = std::to_array<QAccessibleInterface* (*)(QObject*)>({
    makeFor<Page, PageAccessible>,
    makeFor<Slider, SliderAccessible>,
    makeFor<OptionButton, CheckableAccessible>,
    makeFor<PowerButton, CheckableAccessible>,
    makeFor<ComboBox, ComboAccessible>,
    makeFor<LogView, LogAccessible>,
    makeFor<Scope, ScopeAccessible>,
});

// The name of the class would be a base's: these have none that the toolkit knows.
QAccessibleInterface* make(const QString&, QObject* object) {
    for (const auto maker : kMakers) {
        if (QAccessibleInterface* made = maker(object)) return made;
    }
    return nullptr;
}

}  // namespace

void installAccessibility() { QAccessible::installFactory(make); }

void announce(Page& page, WidgetId painted) {
    if (!QAccessible::isActive()) return;
    const WidgetId speaker = speakerOf(painted);
    if (!page.isSpeaker(speaker)) return;
    auto* known = dynamic_cast<PageAccessible*>(QAccessible::queryAccessibleInterface(&page));
    if (known != nullptr) known->announce(speaker);
}

}  // namespace Orvo::Window
