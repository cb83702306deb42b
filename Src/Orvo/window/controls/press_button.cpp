#include "Orvo/window/controls/press_button.h"

#include <QKeyEvent>

#include "Orvo/window/controls/mouse.h"

namespace Orvo::Window {

using Runtime::ReleasedWhere;

PressButton::PressButton(Runtime::Store& store, WidgetId id, QWidget* parent)
    : QAbstractButton(parent), Control(*this, store, id) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    // Mouse and keys don't come to this, but a screen reader's press does.
    connect(this, &QAbstractButton::clicked, this, [this] { input().activate(this->id()); });
}

void PressButton::refresh() {
    Control::refresh();
    if (!isEnabled()) setDown(false);
}

bool PressButton::event(QEvent* event) {
    if (event->type() != QEvent::Shortcut) return QAbstractButton::event(event);
    event->accept();
    input().activate(id());
    return true;
}

void PressButton::mousePressEvent(QMouseEvent* event) {
    const auto button = mouseButtonOf(*event);
    if (!button) return event->ignore();
    if (event->button() == Qt::LeftButton) setDown(true);
    input().press(id(), *button);
}

void PressButton::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton))
        setDown(rect().contains(event->position().toPoint()));
}

void PressButton::mouseReleaseEvent(QMouseEvent* event) {
    const auto button = mouseButtonOf(*event);
    if (!button) return event->ignore();
    if (event->button() == Qt::LeftButton) setDown(false);
    const bool isInside = rect().contains(event->position().toPoint());
    input().release(id(), *button, isInside ? ReleasedWhere::onWidget : ReleasedWhere::elsewhere);
}

void PressButton::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isSpace = event->key() == Qt::Key_Space;
    if (!isSpace && !(isEnter && isEnterTaken())) return event->ignore();
    if (event->isAutoRepeat()) return;
    if (isSpace) return setDown(true);
    input().type(id(), Integer{'\r'});
}

void PressButton::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space) return event->ignore();
    if (event->isAutoRepeat() || !isDown()) return;
    setDown(false);
    input().type(id(), Integer{' '});
}

void PressButton::focusOutEvent(QFocusEvent* event) {
    setDown(false);
    QAbstractButton::focusOutEvent(event);
}

}  // namespace Orvo::Window
