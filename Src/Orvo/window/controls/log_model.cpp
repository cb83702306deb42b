#include "Orvo/window/controls/log_model.h"

#include "Orvo/window/drawing/text.h"

namespace Orvo::Window {

LogModel::LogModel(const Runtime::ListState& list, QObject* parent)
    : QAbstractListModel(parent),
      list_(list),
      clears_(list.clears),
      shown_(int(list.items.size())) {}

void LogModel::keepUp() {
    const int count = int(list_.items.size());
    if (clears_ != list_.clears) {
        beginResetModel();
        clears_ = list_.clears;
        shown_ = count;
        endResetModel();
    } else if (count > shown_) {
        beginInsertRows({}, shown_, count - 1);
        shown_ = count;
        endInsertRows();
    }
}

int LogModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : shown_; }

QString LogModel::textOf(int row, std::size_t most) const {
    if (!has(row)) return {};
    return toQt(StringView(list_.items[std::size_t(row)]).substr(0, most));
}

QVariant LogModel::data(const QModelIndex& index, int role) const {
    if ((role != Qt::DisplayRole && role != Qt::ToolTipRole) || !has(index.row())) return {};
    return textOf(index.row(), StringView::npos);
}

}  // namespace Orvo::Window
