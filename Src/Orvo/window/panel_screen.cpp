#include "Orvo/window/panel_screen.h"

#include <utility>

#include <QApplication>
#include <QHideEvent>
#include <QPainter>
#include <QShortcut>

#include "Artwork/Drawings/drawings.h"
#include "Orvo/layout/roles.h"
#include "Orvo/window/accessible/accessibility.h"
#include "Orvo/window/drawing/palette.h"
#include "Orvo/window/spoken/hints.h"

namespace Orvo::Window {

namespace {

constexpr WidgetId kTabs = Layout::kTabs.id;

bool isWithin(WidgetId widget, WidgetId container) {
    while (widget != container && widget != Layout::kPanel) {
        widget = Layout::describe(widget).container;
    }
    return widget == container;
}

}  // namespace

PanelScreen::PanelScreen(std::shared_ptr<Runtime::Store> store, QWidget* parent, Clock clock)
    : QWidget(parent), store_(std::move(store)) {
    if (clock == Clock::real) ticker_.emplace(*store_);
    frame_.setSingleShot(true);
    frame_.setTimerType(Qt::PreciseTimer);
    connect(&frame_, &QTimer::timeout, this, &PanelScreen::bringFrame);
    installAccessibility();
    setAccessibleName("Amplifier panel");
    setLayoutDirection(Qt::LeftToRight);  // of what is laid out in pixels
    build();
    layOut();
    bringTabToFront();
    store_->showOn(this);
    store_->promptWith(&prompt_);
}

// The children first, while there is a store that they can look at.
PanelScreen::~PanelScreen() {
    store_->showOn(nullptr);
    store_->promptWith(nullptr);
    qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

void PanelScreen::build() {
    tabs_ = new TabStrip(*store_, this);
    for (int tab = 0; tab < tabs_->count(); ++tab) {
        pages_.push_back(new Page(
            *store_, tab, [this, tab] { fill(tab); }, this));
    }
    describeTo(*tabs_, kTabs);
    tabs_->raise();
    addTabShortcut(QKeySequence("Ctrl+Tab"), +1);
    addTabShortcut(QKeySequence("Ctrl+Shift+Tab"), -1);
}

// Most tabs are never looked at. The keyboard reaches the controls in the layout's order, and what
// else is in the host's window after them.
void PanelScreen::fill(int tab) {
    if (filled_.test(std::size_t(tab))) return;
    filled_.set(std::size_t(tab));
    QWidget* before = tabs_;
    for (WidgetId id = 1; id < Layout::kWidgetCount; ++id) {
        if (pageOf(id) != tab) continue;
        Control* control = makeControl(*store_, id, pages_[std::size_t(tab)]);
        if (control == nullptr) continue;
        controls_[id] = control;
        control->layOut(scale_);
        control->refresh();
        setTabOrder(before, &control->self());
        before = &control->self();
    }
}

void PanelScreen::addTabShortcut(const QKeySequence& keys, int direction) {
    auto* shortcut = new QShortcut(keys, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, tabs_, [this, direction] { tabs_->step(direction); });
}

void PanelScreen::setZoom(double zoom) {
    scale_ = Scale(zoom);
    layOut();
}

QWidget* PanelScreen::control(WidgetId widget) {
    if (widget == kTabs) return tabs_;
    fill(pageOf(widget));
    return controls_[widget] != nullptr ? &controls_[widget]->self() : nullptr;
}

void PanelScreen::layOut() {
    setFixedSize(scale_.panelSize());
    tabs_->layOut(scale_);
    for (Page* page : pages_) page->layOut(scale_);
    for (Control* control : controls_) {
        if (control != nullptr) control->layOut(scale_);
    }
}

void PanelScreen::changed(WidgetId widget) {
    if (Layout::kindOf(widget) == Layout::Kind::timer) {
        if (ticker_) ticker_->arm();
        return;
    }
    dirty_.set(widget);
    scheduleFrame();
}

void PanelScreen::pointerChanged() {
    const bool isBusy = store_->pointer() == Widgets::Pointer::hourglass;
    isBusy ? setCursor(Qt::WaitCursor) : unsetCursor();
}

void PanelScreen::scheduleFrame() {
    if (frame_.isActive()) return;
    const qint64 since = sinceFrame_.isValid() ? sinceFrame_.elapsed() : kFrameTime;
    frame_.start(int(qMax<qint64>(0, kFrameTime - since)));
}

void PanelScreen::flush() {
    bringFrame();
    for (Page* page : pages_) page->settle();
}

void PanelScreen::bringFrame() {
    frame_.stop();
    sinceFrame_.start();
    for (WidgetId id = 0; id < Layout::kWidgetCount; ++id) {
        if (dirty_.test(id)) noteWithContents(id);
    }
    // What changes while this goes on is for the next frame.
    const auto due = std::exchange(dirty_, {});
    for (WidgetId id = 0; id < Layout::kWidgetCount; ++id) {
        if (due.test(id)) bringToScreen(id);
    }
    for (Page* page : pages_) page->repaintChanges();
    if (due.test(Layout::kCommon.powerButton.id)) Q_EMIT readOnlyWritten();
}

// What a container allows holds for all that it contains, and an option's fellows share the
// keyboard's stop.
void PanelScreen::noteWithContents(WidgetId widget) {
    const Layout::Kind kind = Layout::kindOf(widget);
    const bool isOption = kind == Layout::Kind::option;
    if (!isOption && kind != Layout::Kind::frame && kind != Layout::Kind::tabs) return;
    for (WidgetId id = 0; id < Layout::kWidgetCount; ++id) {
        if (isOption ? Layout::areFellows(id, widget) : isWithin(id, widget)) dirty_.set(id);
    }
}

void PanelScreen::bringToScreen(WidgetId widget) {
    if (widget == kTabs) return bringTabToFront();
    if (controls_[widget] != nullptr) return controls_[widget]->refresh();
    Page& page = *pages_[std::size_t(pageOf(widget))];
    page.noteChange(widget);
    announce(page, widget);
}

// The focus that a page takes with it would go to whatever comes next in the host's window.
void PanelScreen::bringTabToFront() {
    tabs_->refresh();
    fill(tabs_->currentIndex());
    for (Page* page : pages_) {
        const bool isInFront = page->tab() == tabs_->currentIndex();
        if (!isInFront && page->isAncestorOf(QApplication::focusWidget())) tabs_->setFocus();
        page->setVisible(isInFront);
    }
    if (parentWidget() != nullptr && parentWidget()->size() != size()) parentWidget()->update();
}

// So that neither the strip nor the tab in front ends anywhere.
void PanelScreen::paintAround(QPainter& painter, const QRect& place) const {
    const bool isCommon = tabs_->currentIndex() == 0;
    const auto& background =
        isCommon ? Layout::kCommon.background.id : Layout::pair(1).background.id;
    QRectF page = scale_.rect(background);
    page.setTop(page.top() + scale_.measure(0.5));
    page.setBottom(page.bottom() + scale_.measure(0.5));
    painter.fillRect(place,
                     groundOf(isCommon ? Artwork::kCommonGround : Artwork::kPairGround, page));
    painter.fillRect(QRect(place.left(), 0, place.width(), tabs_->height()), Palette::kTabStrip);
}

// A window that is only minimised comes back, and the prompt with it.
void PanelScreen::hideEvent(QHideEvent* event) {
    if (!event->spontaneous()) prompt_.withdraw();
}

}  // namespace Orvo::Window
