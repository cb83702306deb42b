#include "Orvo/window/controls/combo_box.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QSignalBlocker>

#include "Orvo/window/drawing/chrome.h"
#include "Orvo/window/drawing/palette.h"
#include "Orvo/window/drawing/shown_text.h"
#include "Orvo/window/drawing/text.h"

namespace Orvo::Window {

ComboBox::ComboBox(Runtime::Store& store, WidgetId id, QWidget* parent)
    : QComboBox(parent), Control(*this, store, id) {
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(15);
    // Qt goes on working with the box after it has told a pick; a handler may delete it only later.
    connect(this, &QComboBox::activated, this, &ComboBox::pick, Qt::QueuedConnection);
}

void ComboBox::pick(int item) {
    const QPointer<QWidget> self = this;
    const auto& items = stored<Runtime::StoredCombo>().items;
    if (std::size_t(item) < items.size()) perform(Deed::pick(id(), items[std::size_t(item)]));
    if (self != nullptr) refresh();
}

void ComboBox::refresh() {
    Control::refresh();
    const auto& [text, items] = stored<Runtime::StoredCombo>();
    const QSignalBlocker silence(this);
    QStringList added;
    for (auto i = std::size_t(count()); i < items.size(); ++i) added += shown(items[i]);
    addItems(added);
    const auto current = std::ranges::find(items, text);
    setCurrentIndex(current != items.end() ? int(current - items.begin()) : -1);
    update();
}

// The list has room for what the box has none for.
void ComboBox::showPopup() {
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + bar);
    QComboBox::showPopup();
}

// Qt would make the list for its font, which few ever open; made later, it takes the font over.
void ComboBox::changeEvent(QEvent* event) {
    if (event->type() != QEvent::FontChange) QComboBox::changeEvent(event);
}

void ComboBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body = QRectF(rect()).adjusted(zoom() / 2, zoom() / 2, -zoom() / 2, -zoom() / 2);
    const QColor ink = isEnabled() ? toQt(looks().text) : Palette::kDisabledComboInk;
    painter.setPen(QPen(Palette::kComboEdge, zoom()));
    painter.setBrush(toQt(looks().back));
    painter.drawRoundedRect(body, 2 * zoom(), 2 * zoom());

    const double arrow = 3 * zoom();
    const double right = width() - 4 * zoom();
    const double middle = height() / 2.0;
    painter.setPen(QPen(ink, 1.3 * zoom()));
    painter.drawPolyline(QPolygonF({{right - 2 * arrow, middle - arrow / 2},
                                    {right - arrow, middle + arrow / 2},
                                    {right, middle - arrow / 2}}));
    painter.setPen(ink);
    drawChosen(painter, QRectF(5 * zoom(), 0, right - 2 * arrow - 6 * zoom(), height()));
    drawFocus(painter, *this, zoom());
}

// What doesn't fit is set narrower, and may not be read as something shorter.
void ComboBox::drawChosen(QPainter& painter, const QRectF& room) const {
    const QString text = shown(stored<Runtime::StoredCombo>().text);
    painter.setFont(narrowed(font(), text, room.width()));
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(painter.font()).elidedText(text, Qt::ElideRight, room.width()));
}

void ComboBox::keyPressEvent(QKeyEvent* event) {
    const String typed = typedBy(*event);
    if (typed.empty()) return QComboBox::keyPressEvent(event);
    const QPointer<QObject> self = this;
    for (const char16_t character : typed) {
        if (self) perform(Deed::key(id(), character));
    }
}

// It would change the amplifier in passing.
void ComboBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace Orvo::Window
