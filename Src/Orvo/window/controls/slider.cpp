#include "Orvo/window/controls/slider.h"

#include <utility>

#include <QKeyEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QWheelEvent>

#include "Orvo/window/drawing/chrome.h"
#include "Orvo/window/drawing/palette.h"
#include "Orvo/window/spoken/spoken.h"

namespace Orvo::Window {

namespace {

constexpr double kCapHeight = 11;    // pixels at zoom 1
constexpr double kCapInset = 2.5;    // pixels at zoom 1
constexpr double kEnd = 3;           // pixels at zoom 1
constexpr double kGroove = 4;        // pixels at zoom 1
constexpr double kGrooveMiddle = 9;  // pixels at zoom 1, from the left
constexpr int kTicks = 9;
constexpr int kMainTick = 4;  // every so many ticks

}  // namespace

Slider::Slider(Runtime::Store& store, WidgetId id, QWidget* parent)
    : QWidget(parent), Control(*this, store, id) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Slider::refresh() {
    Control::refresh();
    if (!stored<Runtime::StoredSlider>().isHeld) grip_.reset();
    showValue();
    update();
}

void Slider::showValue() {
    if (!stored<Runtime::StoredSlider>().isHeld || isHidden()) return delete bubble_;
    if (bubble_ == nullptr) bubble_ = new ValueBubble(*parentWidget());
    const QPointF at(0, cap().center().y());
    bubble_->say(valueOf(store(), id()), mapToParent(at), zoom());
}

double Slider::middle() const { return kGrooveMiddle * zoom(); }

SliderTrack Slider::track() const {
    const double margin = (kEnd + kCapHeight / 2) * zoom();
    return {margin, height() - 2 * margin, stored<Runtime::StoredSlider>().maximum, zeroOf(id())};
}

QRectF Slider::cap() const {
    const double inset = kCapInset * zoom();
    const double tall = kCapHeight * zoom();
    return {inset, track().capAt(position()) - tall / 2, width() - 2 * inset, tall};
}

// What takes the mouse away, such as a prompt that opens, also takes the release.
bool Slider::event(QEvent* event) {
    const auto type = event->type();
    if (type == QEvent::Hide || type == QEvent::WindowBlocked || type == QEvent::UngrabMouse)
        letGo();
    return QWidget::event(event);
}

void Slider::letGo() {
    grip_.reset();
    if (std::exchange(isPressed_, false)) perform(Deed::drop(id()));
}

void Slider::mousePressEvent(QMouseEvent* event) {
    const double y = event->position().y();
    const QRectF grabbed = cap();
    isPressed_ = isPressed_ || event->button() == Qt::LeftButton;
    press(*event);
    if (event->button() != Qt::LeftButton) return;
    const bool isOnCap = y >= grabbed.top() && y <= grabbed.bottom();
    if (isOnCap) grip_ = y - grabbed.center().y();
    if (!isOnCap) moveUp(y < grabbed.top() ? track().page() : -track().page());
}

void Slider::mouseMoveEvent(QMouseEvent* event) {
    if (grip_) moveTo(track().positionAt(event->position().y() - *grip_));
}

void Slider::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        isPressed_ = false;
        grip_.reset();
    }
    release(*event);
}

void Slider::moveUp(int steps) { moveTo(position() + track().upwards(steps)); }

void Slider::keyPressEvent(QKeyEvent* event) {
    const int range = track().maximum;
    switch (event->key()) {
        case Qt::Key_Up:
        case Qt::Key_Right:
            return moveUp(1);
        case Qt::Key_Down:
        case Qt::Key_Left:
            return moveUp(-1);
        case Qt::Key_PageUp:
            return moveUp(track().page());
        case Qt::Key_PageDown:
            return moveUp(-track().page());
        case Qt::Key_Home:
            return moveUp(-range);
        case Qt::Key_End:
            return moveUp(range);
        default:
            return event->ignore();
    }
}

void Slider::wheelEvent(QWheelEvent* event) {
    if (!hasFocus() || isForHost(*event)) return event->ignore();
    wheel_ += event->angleDelta().y();
    const int steps = wheel_ / QWheelEvent::DefaultDeltasPerStep;
    wheel_ %= QWheelEvent::DefaultDeltasPerStep;
    event->accept();
    if (steps != 0) moveUp(steps);
}

void Slider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Palette::kSlider);
    painter.setRenderHint(QPainter::Antialiasing);
    drawScale(painter);
    drawGroove(painter);
    drawCap(painter);
    drawFocus(painter, *this, zoom());
}

void Slider::drawScale(QPainter& painter) const {
    const SliderTrack along = track();
    const double to = middle() - (kGroove / 2 + 2) * zoom();
    for (int tick = 0; tick < kTicks; ++tick) {
        const bool isMain = tick % kMainTick == 0;
        const QColor colour = isMain ? Palette::kMainTick : Palette::kTick;
        painter.setPen(QPen(isEnabled() ? colour : colour.darker(200), zoom()));
        const double at = along.top + along.length * tick / (kTicks - 1);
        const double y = qRound(at) + 0.5;
        const double from = to - (isMain ? 4 : 2) * zoom();
        painter.drawLine(QPointF(from, y), QPointF(to, y));
        if (isMain) drawNumber(painter, y, measureAt(id(), along.positionAt(at)));
    }
}

void Slider::drawNumber(QPainter& painter, double y, int number) const {
    constexpr double kPoints = 6;
    const double left = middle() + (kGroove / 2 + 1) * zoom();
    const QRectF place(left, y - middle(), width() - left - kCapInset * zoom(), 2 * middle());
    const QString text = QString::number(number);
    painter.setFont(narrowed(toQt(Layout::kArial.sized(kPoints), zoom()), text, place.width()));
    painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, text);
}

void Slider::drawGroove(QPainter& painter) const {
    const SliderTrack along = track();
    const double half = kGroove / 2 * zoom();
    QRectF groove(middle() - half, along.top - half, 2 * half, along.length + 2 * half);
    painter.setPen(QPen(Palette::kGrooveEdge, zoom()));
    painter.setBrush(Palette::kGroove);
    painter.drawRoundedRect(groove, half, half);
}

// Both ends slope down to a waist that holds the finger, with the index across it.
void Slider::drawCap(QPainter& painter) const {
    const QRectF place = cap();
    int bright = isEnabled() ? 222 : 112;
    if (isEnabled() && (underMouse() || stored<Runtime::StoredSlider>().isHeld)) bright = 244;
    const auto metal = [bright](double share) {
        const int level = int(bright * share);
        return QColor(level, level, qMin(255, level + 4));
    };
    QLinearGradient light(place.topLeft(), place.bottomLeft());
    light.setColorAt(0, metal(1));
    light.setColorAt(0.38, metal(0.78));
    light.setColorAt(0.62, metal(0.92));
    light.setColorAt(1, metal(0.6));
    const double radius = 2 * zoom();
    painter.setPen(Qt::NoPen);
    painter.setBrush(Palette::kCapShadow);
    painter.drawRoundedRect(place.translated(0, 1.5 * zoom()), radius, radius);
    painter.setPen(QPen(Palette::kCapEdge, zoom()));
    painter.setBrush(light);
    painter.drawRoundedRect(place, radius, radius);
    painter.setPen(
        QPen(isEnabled() ? Palette::kCapIndex : Palette::kDisabledCapIndex, 1.6 * zoom()));
    const double y = place.center().y();
    painter.drawLine(QPointF(place.left() + zoom(), y), QPointF(place.right() - zoom(), y));
}

}  // namespace Orvo::Window
