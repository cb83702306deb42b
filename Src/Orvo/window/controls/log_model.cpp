#include "Orvo/window/controls/log_model.h"

#include "Orvo/window/drawing/shown_text.h"

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

StringView LogModel::lineAt(int row) const {
    return has(row) ? StringView(list_.items[std::size_t(row)]) : StringView();
}

QVariant LogModel::data(const QModelIndex& index, int role) const {
    if (!has(index.row())) return {};
    if (role == Qt::DisplayRole) return shown(lineAt(index.row()));
    return role == Qt::ToolTipRole ? onLines(lineAt(index.row())) : QVariant();
}

}  // namespace Orvo::Window
