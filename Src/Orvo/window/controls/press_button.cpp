#include "Orvo/window/controls/press_button.h"

#include <QKeyEvent>

namespace Orvo::Window {

PressButton::PressButton(Runtime::Store& store, WidgetId id, QWidget* parent)
    : QAbstractButton(parent), Control(*this, store, id) {
    setCheckable(looks().kind != Layout::Kind::button);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    // Mouse and keys don't come to this, but a screen reader's press does.
    connect(this, &QAbstractButton::clicked, this, [this] { perform(Deed::activate(this->id())); });
}

void PressButton::refresh() {
    Control::refresh();
    if (!isEnabled()) setDown(false);
}

bool PressButton::event(QEvent* event) {
    if (event->type() != QEvent::Shortcut) return QAbstractButton::event(event);
    event->accept();
    perform(Deed::activate(id()));
    return true;
}

void PressButton::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) setDown(true);
    press(*event);
}

void PressButton::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton))
        setDown(rect().contains(event->position().toPoint()));
}

void PressButton::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) setDown(false);
    release(*event);
}

void PressButton::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isSpace = event->key() == Qt::Key_Space;
    const bool isEnterTaken = looks().kind == Layout::Kind::button;
    if (!isSpace && !(isEnter && isEnterTaken)) return event->ignore();
    if (event->isAutoRepeat()) return;
    if (isSpace) return setDown(true);
    perform(Deed::key(id(), u'\r'));
}

void PressButton::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space) return event->ignore();
    if (event->isAutoRepeat() || !isDown()) return;
    setDown(false);
    perform(Deed::key(id(), u' '));
}

void PressButton::focusOutEvent(QFocusEvent* event) {
    setDown(false);
    QAbstractButton::focusOutEvent(event);
}

}  // namespace Orvo::Window
