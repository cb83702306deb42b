#include "Manager/Window/pointed_input.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace Orvo::Manager {
namespace {

Qt::MouseButton toQt(MouseButton button) {
    switch (button) {
        case MouseButton::left:
            return Qt::LeftButton;
        case MouseButton::right:
            return Qt::RightButton;
        case MouseButton::middle:
            break;
    }
    return Qt::MiddleButton;
}

void send(const QPointer<QWidget>& control, QEvent::Type type, QPoint at, Qt::MouseButton button,
          Qt::MouseButtons down) {
    if (!control) return;
    QMouseEvent event(type, at, control->mapToGlobal(at), button, down, Qt::NoModifier);
    QCoreApplication::sendEvent(control, &event);
}

struct Key {
    int key = 0;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    QString text;
};

Key keyOf(char16_t code) {
    if (code == u'\r') return {Qt::Key_Return, Qt::NoModifier, "\r"};
    if (code >= 1 && code <= 26) return {Qt::Key_A + code - 1, Qt::ControlModifier, QChar(code)};
    const bool hasKey = code >= u' ' && code < 0x7F;
    return {hasKey ? QChar(code).toUpper().unicode() : int(Qt::Key_unknown), Qt::NoModifier,
            QChar(code)};
}

}  // namespace

void clickOn(QWidget& control, MouseButton button, ReleasedWhere released) {
    const QPointer<QWidget> alive = &control;
    const Qt::MouseButton qtButton = toQt(button);
    const QPoint inside = control.rect().center();
    const QPoint outside = control.rect().bottomRight() + QPoint(5, 5);
    const QPoint end = released == ReleasedWhere::onWidget ? inside : outside;
    send(alive, QEvent::MouseButtonPress, inside, qtButton, qtButton);
    if (end != inside) send(alive, QEvent::MouseMove, end, Qt::NoButton, qtButton);
    send(alive, QEvent::MouseButtonRelease, end, qtButton, Qt::NoButton);
}

void typeInto(QWidget& control, char16_t code) {
    const QPointer<QWidget> alive = &control;
    const Key key = keyOf(code);
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (!alive) return;
        QKeyEvent event(type, key.key, key.modifiers, key.text);
        QCoreApplication::sendEvent(alive, &event);
    }
}

}  // namespace Orvo::Manager
