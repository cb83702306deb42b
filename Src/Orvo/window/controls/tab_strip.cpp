#include "Orvo/window/controls/tab_strip.h"

#include <QHoverEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "Orvo/window/drawing/palette.h"

namespace Orvo::Window {

namespace {

struct TabColours {
    QColor face;
    QColor text;
};

enum class Standing { inFront, pointedAt, behind };

TabColours coloursOf(int tab, Standing standing) {
    if (standing == Standing::pointedAt) return {Palette::kPointedTab, Palette::kPointedTabText};
    if (standing == Standing::behind) return {Palette::kTabBehind, Palette::kTabBehindText};
    if (tab == 0) return {Palette::kCommonTab, toQt(Layout::kCommonText)};
    return {Palette::kPairTab, toQt(Layout::kPairText)};
}

}  // namespace

TabStrip::TabStrip(Runtime::Store& store, QWidget* parent)
    : QTabBar(parent), Control(*this, store, Layout::kTabs.id) {
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    for (const auto caption : Layout::kTabCaptions) addTab(toQt(StringView(caption)));
    connect(this, &QTabBar::currentChanged, this, &TabStrip::select);
}

void TabStrip::layOut(const Scale& scale) {
    const QFont font = toQt(looks().font, scale.zoom());
    for (std::size_t tab = 0; tab < widths_.size(); ++tab) {
        widths_[tab] = qCeil(widthOf(tabText(int(tab)), font)) + qRound(28 * scale.zoom());
    }
    Control::layOut(scale);
    const auto& place = description().place;
    setGeometry(0, 0, scale.panelSize().width(), scale.pixels(place.top + Layout::kTabStripHeight));
}

void TabStrip::refresh() {
    const auto& [current, enabled] = stored<Runtime::StoredTabs>();
    const QSignalBlocker silence(this);
    for (int tab = 0; tab < count(); ++tab) setTabEnabled(tab, enabled[std::size_t(tab)]);
    setCurrentIndex(current);
    setEnabled(store().acceptsInput(Layout::kTabs.id));
    update();
}

void TabStrip::select(int tab) {
    perform(Deed::tab(Layout::kTabs.id, tab));
    refresh();
}

void TabStrip::step(int direction) {
    const int from = currentIndex();
    for (int i = 1; i < count(); ++i) {
        const int tab = (from + count() + direction * i) % count();
        if (isTabEnabled(tab)) return select(tab);
    }
}

QSize TabStrip::tabSizeHint(int index) const { return {widths_[std::size_t(index)], height()}; }

// A pointer that merely is where the strip comes up points at nothing.
bool TabStrip::event(QEvent* event) {
    if (event->type() == QEvent::HoverMove) {
        pointedAt_ = tabAt(static_cast<QHoverEvent&>(*event).position().toPoint());
    }
    if (event->type() == QEvent::HoverLeave) pointedAt_ = -1;
    return QTabBar::event(event);
}

void TabStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Palette::kTabStrip);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int tab = 0; tab < count(); ++tab) drawTab(painter, tab);
}

void TabStrip::drawTab(QPainter& painter, int tab) const {
    const bool isInFront = tab == currentIndex();
    const bool isPointedAt = tab == pointedAt_;
    const QRectF place = QRectF(tabRect(tab)).adjusted(zoom(), 2 * zoom(), -zoom(), 0);
    const TabColours colours = coloursOf(tab, isInFront     ? Standing::inFront
                                              : isPointedAt ? Standing::pointedAt
                                                            : Standing::behind);
    painter.save();
    painter.setClipRect(place);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isTabEnabled(tab) ? colours.face : Palette::kDisabledTab);
    painter.drawRoundedRect(place.adjusted(0, 0, 0, 8 * zoom()), 4 * zoom(), 4 * zoom());
    painter.restore();
    painter.setPen(isTabEnabled(tab) ? colours.text : Palette::kDisabledTabText);
    painter.drawText(place, Qt::AlignCenter, tabText(tab));
    if (!isInFront || !hasFocus()) return;
    painter.setPen(QPen(Palette::kFocus, 1.5 * zoom()));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(place.adjusted(2 * zoom(), 2 * zoom(), -2 * zoom(), -2 * zoom()),
                            2 * zoom(), 2 * zoom());
}

void TabStrip::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace Orvo::Window
