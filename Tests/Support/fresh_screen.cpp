#include "Support/fresh_screen.h"

#include <algorithm>
#include <cstdlib>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>

#include "Orvo/store/stored_widgets.h"
#include "Orvo/window/panel_screen.h"
#include "Support/roles.h"

namespace Orvo::Tests {
namespace {

using Window::PanelScreen;

PanelScreen& screenOf(const QWidget& widget) {
    for (QObject* child : widget.children()) {
        if (auto* screen = dynamic_cast<PanelScreen*>(child)) return *screen;
    }
    throw std::logic_error("no screen");
}

void takeThePersonAway(PanelScreen& screen) {
    while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    if (QWidget* focused = QApplication::focusWidget()) focused->clearFocus();
    for (QWidget* widget : screen.findChildren<QWidget*>()) {
        widget->setAttribute(Qt::WA_UnderMouse, false);
        QHoverEvent left(QEvent::HoverLeave, QPointF(-1, -1), QPointF(-1, -1), QPointF());
        QCoreApplication::sendEvent(widget, &left);
        if (auto* button = qobject_cast<QAbstractButton*>(widget)) button->setDown(false);
    }
    auto& log = dynamic_cast<QAbstractItemView&>(*screen.control(kCommon.log));
    log.clearSelection();
    log.verticalScrollBar()->setValue(log.verticalScrollBar()->maximum());
    screen.flush();
    log.verticalScrollBar()->setValue(log.verticalScrollBar()->maximum());
}

// Layers that are blended at another time are rounded differently, and the edge of a large letter
// by up to 26 of 255 in a pixel: what lasts is seen in the mean of a block.
constexpr int kBlock = 4;
constexpr int kRounding = 8;

int difference(QRgb one, QRgb other) {
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))});
}

bool differIn(const QRect& block, const QImage& one, const QImage& other) {
    int sum = 0;
    for (int y = block.top(); y <= block.bottom(); ++y) {
        for (int x = block.left(); x <= block.right(); ++x)
            sum += difference(one.pixel(x, y), other.pixel(x, y));
    }
    return sum > kRounding * block.width() * block.height();
}

std::string pictureDifference(PanelScreen& shown, PanelScreen& fresh) {
    const QImage one = shown.grab().toImage();
    const QImage other = fresh.grab().toImage();
    QRect place;
    for (int y = 0; y < one.height(); y += kBlock) {
        for (int x = 0; x < one.width(); x += kBlock) {
            const QRect block = QRect(x, y, kBlock, kBlock) & one.rect();
            if (differIn(block, one, other)) place |= block;
        }
    }
    if (place.isNull()) return {};
    return QString("picture at %1, %2, %3 x %4, zoom %5")
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height())
        .arg(shown.zoom())
        .toStdString();
}

// A scope measures its trace only then.
void askForTip(QWidget& control) {
    QHelpEvent asked(QEvent::ToolTip, QPoint(), QPoint());
    QCoreApplication::sendEvent(&control, &asked);
    QToolTip::hideText();
}

std::string controlDifference(PanelScreen& shown, PanelScreen& fresh, Widgets::WidgetId id) {
    QWidget* one = shown.control(id);
    if (one == nullptr) return {};
    QWidget* other = fresh.control(id);
    askForTip(*one);
    askForTip(*other);
    const bool areAlike =
        one->isEnabled() == other->isEnabled() && one->isHidden() == other->isHidden() &&
        one->geometry() == other->geometry() && one->toolTip() == other->toolTip() &&
        one->accessibleDescription() == other->accessibleDescription();
    return areAlike ? "" : "control " + std::string(Layout::describe(id).name);
}

std::string difference(PanelScreen& shown, PanelScreen& fresh, int tab) {
    for (Widgets::WidgetId id = 1; id < Layout::kWidgetCount; ++id) {
        if (Window::pageOf(id) != tab) continue;
        std::string found = controlDifference(shown, fresh, id);
        if (!found.empty()) return found;
    }
    return pictureDifference(shown, fresh);
}

}  // namespace

std::string differenceFromFresh(Window::PanelWidget& widget) {
    const auto store = widget.store().shared_from_this();
    PanelScreen& shown = screenOf(widget);
    takeThePersonAway(shown);
    Runtime::Prompter* prompter = store->prompter();
    std::string found;
    {
        PanelScreen fresh(store, &widget, Window::Clock::byHand);
        fresh.setZoom(shown.zoom());
        fresh.flush();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        found = difference(shown, fresh, store->get<Runtime::StoredTabs>(0).state().current);
    }
    store->showOn(&shown);
    store->promptWith(prompter);
    return found;
}

}  // namespace Orvo::Tests
