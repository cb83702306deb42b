#include "Orvo/window/controls/control.h"

#include <optional>
#include <type_traits>

#include <QMouseEvent>

#include "Orvo/store/user_input.h"
#include "Orvo/widgets/kind_table.h"
#include "Orvo/window/controls/buttons.h"
#include "Orvo/window/controls/combo_box.h"
#include "Orvo/window/controls/log_view.h"
#include "Orvo/window/controls/scope.h"
#include "Orvo/window/controls/slider.h"
#include "Orvo/window/spoken/hints.h"

namespace Orvo::Window {

using Runtime::MouseButton;
using Runtime::ReleasedWhere;

Control::Control(QWidget& self, Runtime::Store& store, WidgetId id)
    : self_(self), store_(store), id_(id) {
    const std::string_view name = Layout::describe(id).name;
    self.setObjectName(QString::fromLatin1(name.data(), qsizetype(name.size())));
}

void Control::layOut(const Scale& scale) {
    zoom_ = scale.zoom();
    self_.setGeometry(scale.rect(id_));
    self_.setFont(toQt(looks().font, zoom_));
}

void Control::refreshPresence() {
    self_.setVisible(store_.isShown(id_));
    self_.setEnabled(store_.acceptsInput(id_));
}

void Control::refresh() {
    refreshPresence();
    tellValueTo(self_, store_, id_);
}

namespace {

std::optional<MouseButton> mouseButtonOf(const QMouseEvent& event) {
    switch (event.button()) {
        case Qt::LeftButton:
            return MouseButton::left;
        case Qt::RightButton:
            return MouseButton::right;
        case Qt::MiddleButton:
            return MouseButton::middle;
        default:
            return std::nullopt;
    }
}

using Layout::Kind;
using Widgets::For;

// clang-format off
using Controls = Widgets::KindTable<
    For<Kind::button, CommandButton>,
    For<Kind::option, OptionButton>,
    For<Kind::check, PowerButton>,
    For<Kind::combo, ComboBox>,
    For<Kind::list, LogView>,
    For<Kind::slider, Slider>,
    For<Kind::picture, Scope>>;
// clang-format on

}  // namespace

bool Control::isForHost(const QWheelEvent& event) {
    return event.modifiers().testFlag(Qt::ControlModifier);
}

void Control::press(QMouseEvent& event) {
    const auto button = mouseButtonOf(event);
    if (!button) return event.ignore();
    store_.input().press(id_, *button);
}

void Control::release(QMouseEvent& event) {
    const auto button = mouseButtonOf(event);
    if (!button) return event.ignore();
    const bool isInside = self_.rect().contains(event.position().toPoint());
    const auto where = isInside ? ReleasedWhere::onWidget : ReleasedWhere::elsewhere;
    store_.input().release(id_, *button, where);
}

// A screen reader that is told of a name asks whose it is, and keeps what it learns: not while the
// control is still being constructed.
Control* makeControl(Runtime::Store& store, WidgetId id, QWidget* parent) {
    Control* made = Controls::visit(
        Layout::kindOf(id), [&]<class Shown>(std::type_identity<Shown> /*kind*/) -> Control* {
            return new Shown(store, id, parent);
        });
    if (made != nullptr) describeTo(made->self(), id);
    return made;
}

}  // namespace Orvo::Window
