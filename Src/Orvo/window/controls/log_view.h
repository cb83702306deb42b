#pragma once

#include <QAbstractItemView>

#include "Orvo/window/controls/control.h"
#include "Orvo/window/controls/log_model.h"
#include "Orvo/window/controls/log_scroll_bar.h"

namespace Orvo::Window {

/// The message log. All its lines are of one height, so that unlike in Qt's own list a line that is
/// added costs the same however many are there. It follows the last line while that is in view.
class LogView final : public QAbstractItemView, public Control {
public:
    LogView(Runtime::Store& store, WidgetId id, QWidget* parent);
    void layOut(const Scale& scale) override;
    void refresh() override;

    [[nodiscard]] QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint) override;
    [[nodiscard]] QModelIndex indexAt(const QPoint& point) const override;
    /// Nothing: there may be millions of lines to look through.
    void keyboardSearch(const QString& /*typed*/) override {}

protected:
    bool event(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& before) override;
    void rowsInserted(const QModelIndex& parent, int start, int end) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] int horizontalOffset() const override { return 0; }
    [[nodiscard]] int verticalOffset() const override;
    [[nodiscard]] bool isIndexHidden(const QModelIndex&) const override { return false; }
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection& selection) const override;
    void updateGeometries() override;
    void scrollContentsBy(int columns, int rows) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int visibleRows() const;
    [[nodiscard]] int top() const;
    [[nodiscard]] int rowCount() const { return model_.rowCount({}); }
    [[nodiscard]] QRect placeOf(int first, int last) const;
    void copy() const;
    void drawRow(QPainter& painter, int row) const;

    LogScrollBar& bar_ = *new LogScrollBar(this);
    LogModel& model_;  // a child, which Qt lets go of after the view
    int rowHeight_ = 1;
};

}  // namespace Orvo::Window
