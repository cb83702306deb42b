#include "Support/random_person.h"

#include <utility>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QHelpEvent>
#include <QInputDialog>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>

namespace Orvo::Tests {
namespace {

constexpr int kDeepest = 4;

struct Key {
    Qt::Key key{};
    Qt::KeyboardModifiers modifiers{};
};

constexpr Key kKeys[] = {
    {Qt::Key_Space},
    {Qt::Key_Return},
    {Qt::Key_Tab},
    {Qt::Key_Backtab, Qt::ShiftModifier},
    {Qt::Key_Up},
    {Qt::Key_Down},
    {Qt::Key_Left},
    {Qt::Key_Right},
    {Qt::Key_PageUp},
    {Qt::Key_PageDown},
    {Qt::Key_Home},
    {Qt::Key_End},
    {Qt::Key_Escape},
    {Qt::Key_Backspace},
    {Qt::Key_Delete},
    {Qt::Key_1},
    {Qt::Key_9},
    {Qt::Key_A},
    {Qt::Key_A, Qt::ControlModifier},
    {Qt::Key_C, Qt::ControlModifier},
    {Qt::Key_R, Qt::ControlModifier},
    {Qt::Key_Tab, Qt::ControlModifier},
    {Qt::Key_P, Qt::AltModifier},
    {Qt::Key_S, Qt::AltModifier},
    {Qt::Key_I, Qt::AltModifier},
    {Qt::Key_1, Qt::AltModifier},
    {Qt::Key_4, Qt::AltModifier},
    {Qt::Key_F4, Qt::AltModifier},
};

// What a dialog for files could do to the machine's is left to nobody's mood.
bool isAboutFiles(const QWidget* dialog) {
    for (; dialog != nullptr; dialog = dialog->parentWidget()) {
        if (qobject_cast<const QFileDialog*>(dialog) != nullptr) return true;
    }
    return false;
}

}  // namespace

bool liveOn(int deeds, int deedsBetweenLooks, const std::function<void()>& act,
            const std::function<void()>& look) {
    for (int deed = 1; deed <= deeds; ++deed) {
        act();
        QApplication::processEvents();
        if (deed % deedsBetweenLooks == 0) look();
        if (testing::Test::HasFailure()) return false;
    }
    return true;
}

RandomPerson::RandomPerson(Chance& chance, std::function<void()> meanwhile)
    : chance_(chance), meanwhile_(std::move(meanwhile)) {
    qApp->installEventFilter(this);
}

QString RandomPerson::text() {
    static const QString kUsual[] = {"530284", "A 1", "", "/nowhere"};
    return chance_.isOneIn(3) ? chance_.oneOf(hostile_).text : chance_.oneOf(kUsual);
}

QString RandomPerson::file(const QString& name) const {
    return QString::fromStdString(directory_.path()) + '/' + name;
}

// Whoever has opened it may wait for its end.
bool RandomPerson::eventFilter(QObject* object, QEvent* event) {
    const bool isMenu = qobject_cast<QMenu*>(object) != nullptr;
    if (!isMenu && qobject_cast<QDialog*>(object) == nullptr) return false;
    if (event->type() != QEvent::Show) return false;
    auto* timer = new QTimer(object);
    connect(timer, &QTimer::timeout, this, &RandomPerson::actInTheMidst);
    timer->start(0);
    return false;
}

void RandomPerson::actInTheMidst() {
    QWidget* popup = QApplication::activePopupWidget();
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (popup == nullptr && dialog == nullptr) return;
    ++depth_;
    if (depth_ <= kDeepest && !isAboutFiles(dialog) && !chance_.isOneIn(4)) {
        meanwhile_();
    } else if (popup != nullptr) {
        popup->close();
    } else {
        answer(*dialog);
    }
    --depth_;
}

void RandomPerson::answer(QDialog& dialog) {
    if (auto* input = qobject_cast<QInputDialog*>(&dialog)) input->setTextValue(text());
    if (auto* files = qobject_cast<QFileDialog*>(&dialog)) {
        static const QString kNames[] = {"session.txt", "picture.png", "other.txt"};
        files->selectFile(file(chance_.oneOf(kNames)));
    }
    QMetaObject::invokeMethod(&dialog, chance_.isOneIn(3) ? "reject" : "accept");
}

void RandomPerson::act(QWidget& window) {
    QWidget* front = QApplication::activePopupWidget();
    if (front == nullptr) front = QApplication::activeModalWidget();
    if (front == nullptr) front = &window;
    if (isAboutFiles(front) || !front->isVisible() || front->windowHandle() == nullptr) return;
    switch (chance_.below(8)) {
        case 0:
            return rollWheel(*front);
        case 1:
            return rest(*front);
        case 2:
        case 3:
            return useKeys(*front);
        default:
            return useMouse(*front);
    }
}

QPoint RandomPerson::pointIn(const QWidget& window) {
    return {chance_.below(window.width()), chance_.below(window.height())};
}

// Mostly it is let go where it was pressed.
void RandomPerson::useMouse(QWidget& window) {
    constexpr Qt::MouseButton kButtons[] = {Qt::LeftButton, Qt::LeftButton, Qt::LeftButton,
                                            Qt::RightButton, Qt::MiddleButton};
    const Qt::MouseButton button = chance_.oneOf(kButtons);
    const QPoint from = pointIn(window);
    const QPoint to = chance_.isOneIn(3) ? pointIn(window) : from;
    const QPointer<QWindow> handle = window.windowHandle();
    QTest::mouseMove(handle, from);
    if (handle) QTest::mousePress(handle, button, {}, from);
    if (handle && to != from) QTest::mouseMove(handle, to);
    if (handle) QTest::mouseRelease(handle, button, {}, to);
}

void RandomPerson::rollWheel(QWidget& window) {
    const QPoint point = pointIn(window);
    QWidget* target = window.childAt(point);
    if (target == nullptr) return;
    const QPoint turn(0, chance_.isOneIn(2) ? 120 : -120);
    const QPointF place = target->mapFrom(&window, point);
    QWheelEvent event(place, target->mapToGlobal(place), {}, turn, {}, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(target, &event);
}

void RandomPerson::rest(QWidget& window) {
    const QPoint point = pointIn(window);
    QWidget* target = window.childAt(point);
    if (target == nullptr) return;
    QHelpEvent event(QEvent::ToolTip, target->mapFrom(&window, point), window.mapToGlobal(point));
    QApplication::sendEvent(target, &event);
}

void RandomPerson::useKeys(QWidget& window) {
    const auto& [key, modifiers] = chance_.oneOf(kKeys);
    QWidget* focused = window.focusWidget();
    QTest::keyClick(focused != nullptr ? focused : &window, key, modifiers);
}

}  // namespace Orvo::Tests
