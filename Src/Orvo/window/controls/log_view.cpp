#include "Orvo/window/controls/log_view.h"

#include <algorithm>

#include <QAccessible>
#include <QClipboard>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QWheelEvent>

#include "Orvo/service/information_entry.h"
#include "Orvo/window/drawing/palette.h"
#include "Orvo/window/drawing/shown_text.h"

namespace Orvo::Window {

namespace {

constexpr double kMargin = 4;  // left of the text, in pixels

}  // namespace

LogView::LogView(Runtime::Store& store, WidgetId id, QWidget* parent)
    : QAbstractItemView(parent),
      Control(*this, store, id),
      model_(*new LogModel(stored<Runtime::StoredList>(), this)) {
    setModel(&model_);
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBar(&bar_);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(ExtendedSelection);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
}

// The bar first: the toolkit makes room for it only while the view is seen, or becomes another
// size.
void LogView::layOut(const Scale& scale) {
    bar_.setFixedWidth(scale.thickness(11));
    bar_.parentWidget()->layout()->activate();  // which does not by itself while it is hidden
    Control::layOut(scale);
    rowHeight_ = QFontMetrics(font()).height();
    updateGeometries();
}

void LogView::refresh() {
    Control::refresh();
    const int before = rowCount();
    model_.keepUp();
    updateGeometries();
    bar_.settle();
    // Only now: what waits to be painted can't be scrolled.
    if (rowCount() > before) viewport()->update(placeOf(before, rowCount() - 1));
}

int LogView::top() const { return bar_.value(); }
int LogView::visibleRows() const { return std::max(1, viewport()->height() / rowHeight_); }
int LogView::verticalOffset() const { return top() * rowHeight_; }

void LogView::updateGeometries() {
    const bool isAtEnd = top() == bar_.maximum();
    bar_.setPageStep(visibleRows());
    bar_.setRange(0, std::max(0, rowCount() - visibleRows()));
    if (isAtEnd) bar_.setValue(bar_.maximum());
    QAbstractItemView::updateGeometries();
}

// The frame of the focus stays where it is, and parts of device pixels can't be scrolled.
void LogView::scrollContentsBy(int /*columns*/, int rows) {
    const double ratio = devicePixelRatioF();
    if (hasFocus() || ratio != qRound(ratio)) return viewport()->update();
    viewport()->scroll(0, rows * rowHeight_);
}

QRect LogView::placeOf(int first, int last) const {
    return {0, (first - top()) * rowHeight_, viewport()->width(), (last - first + 1) * rowHeight_};
}

QRect LogView::visualRect(const QModelIndex& index) const {
    return placeOf(index.row(), index.row());
}

QModelIndex LogView::indexAt(const QPoint& point) const {
    return point.y() < 0 ? QModelIndex() : model_.index(top() + point.y() / rowHeight_);
}

void LogView::scrollTo(const QModelIndex& index, ScrollHint) {
    const int last = index.row() - visibleRows() + 1;
    bar_.setValue(std::max(last, std::min(top(), index.row())));
}

QModelIndex LogView::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
    // Without a current line the first key starts where the person looks.
    const int row = currentIndex().isValid() ? currentIndex().row() : top() - 1;
    const auto rowAt = [this](int wanted) {
        return model_.index(std::clamp(wanted, 0, std::max(0, rowCount() - 1)));
    };
    switch (action) {
        case MoveUp:
        case MovePrevious:
            return rowAt(row - 1);
        case MoveDown:
        case MoveNext:
            return rowAt(row + 1);
        case MovePageUp:
            return rowAt(row - visibleRows());
        case MovePageDown:
            return rowAt(row + visibleRows());
        case MoveHome:
            return rowAt(0);
        case MoveEnd:
            return rowAt(rowCount() - 1);
        default:
            return rowAt(row);
    }
}

void LogView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) {
    const auto rowAt = [this](int y) { return top() + qFloor(double(y) / rowHeight_); };
    const int first = std::max(0, rowAt(rect.top()));
    const int last = std::min(rowCount() - 1, rowAt(rect.bottom()));
    if (first > last) return;
    selectionModel()->select({model_.index(first), model_.index(last)}, command);
}

QRegion LogView::visualRegionForSelection(const QItemSelection& selection) const {
    QRegion region;
    for (const QItemSelectionRange& range : selection) {
        region += placeOf(range.top(), range.bottom());
    }
    return region & viewport()->rect();
}

void LogView::rowsInserted(const QModelIndex&, int, int) { updateGeometries(); }

void LogView::currentChanged(const QModelIndex& current, const QModelIndex& before) {
    QAbstractItemView::currentChanged(current, before);
    if (!hasFocus() || !current.isValid()) return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(current.row());
    QAccessible::updateAccessibility(&event);
}

void LogView::wheelEvent(QWheelEvent* event) {
    isForHost(*event) ? event->ignore() : QAbstractItemView::wheelEvent(event);
}

// The one key that the panel waits for here is not left to a shortcut of the host's.
bool LogView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const String typed = typedBy(static_cast<QKeyEvent&>(*event));
        if (typed == String(1, InformationEntry::kStartKey)) event->accept();
    }
    return QAbstractItemView::event(event);
}

void LogView::keyPressEvent(QKeyEvent* event) {
    const QPointer<QObject> self = this;
    const String typed = typedBy(*event);
    bool isTaken = typed.empty();
    for (const char16_t character : typed) {
        isTaken |= perform(Deed::key(id(), character));
        if (!self) return;
    }
    if (!isTaken) return;
    if (event->matches(QKeySequence::Copy)) return copy();
    QAbstractItemView::keyPressEvent(event);
}

void LogView::copy() const {
    QItemSelection ranges = selectionModel()->selection();
    std::ranges::sort(ranges, {}, &QItemSelectionRange::top);
    QStringList texts;
    for (const QItemSelectionRange& range : ranges) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            texts += toQt(model_.lineAt(row));
        }
    }
    QGuiApplication::clipboard()->setText(texts.join('\n'));
}

void LogView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const QRect dirty = event->rect();
    painter.fillRect(dirty, toQt(looks().back));
    const int last = std::min(rowCount() - 1, top() + dirty.bottom() / rowHeight_);
    for (int row = top() + dirty.top() / rowHeight_; row <= last; ++row) drawRow(painter, row);
    if (!hasFocus()) return;
    painter.setPen(QPen(Palette::kFocus, 2 * qRound(zoom())));
    painter.drawRect(viewport()->rect());
}

void LogView::drawRow(QPainter& painter, int row) const {
    const QModelIndex index = model_.index(row);
    const QRect place = visualRect(index);
    if (selectionModel()->isSelected(index)) painter.fillRect(place, Palette::kSelectedLine);
    painter.setPen(isEnabled() ? toQt(looks().text) : toQt(looks().text).darker(160));
    const int margin = qRound(kMargin * zoom());
    const QRect line = place.adjusted(margin, 0, -margin, 0);
    // No more of a long line than there is room for, as a character takes a pixel or more.
    const QString text = shown(model_.lineAt(row).substr(0, std::size_t(line.width()) + 1));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, line.width()));
}

}  // namespace Orvo::Window
