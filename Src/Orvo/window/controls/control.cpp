#include "Orvo/window/controls/control.h"

#include "Orvo/window/controls/buttons.h"
#include "Orvo/window/controls/combo_box.h"
#include "Orvo/window/controls/log_view.h"
#include "Orvo/window/controls/scope.h"
#include "Orvo/window/controls/slider.h"
#include "Orvo/window/spoken/hints.h"

namespace Orvo::Window {

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

void Control::refresh() {
    self_.setVisible(store_.isShown(id_));
    self_.setEnabled(store_.acceptsInput(id_));
    tellValueTo(self_, store_, id_);
}

namespace {

Control* construct(Runtime::Store& store, WidgetId id, QWidget* parent) {
    switch (Layout::describe(id).style.kind) {
        case Layout::Kind::button:
            return new CommandButton(store, id, parent);
        case Layout::Kind::option:
            return new OptionButton(store, id, parent);
        case Layout::Kind::check:
            return new PowerButton(store, id, parent);
        case Layout::Kind::combo:
            return new ComboBox(store, id, parent);
        case Layout::Kind::list:
            return new LogView(store, id, parent);
        case Layout::Kind::slider:
            return new Slider(store, id, parent);
        case Layout::Kind::picture:
            return new Scope(store, id, parent);
        default:
            return nullptr;
    }
}

}  // namespace

// A screen reader that is told of a name asks whose it is, and keeps what it learns: not while the
// control is still being constructed.
Control* makeControl(Runtime::Store& store, WidgetId id, QWidget* parent) {
    Control* made = construct(store, id, parent);
    if (made != nullptr) describeTo(made->self(), id);
    return made;
}

}  // namespace Orvo::Window
