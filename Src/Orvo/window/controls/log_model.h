#pragma once

#include <QAbstractListModel>

#include "Orvo/store/state.h"
#include "Orvo/values/types.h"

namespace Orvo::Window {

/// The lines of a list as the store keeps them, without a copy. They are shown from one `keepUp` to
/// the next; in between, lines that the store has already dropped are empty.
class LogModel final : public QAbstractListModel {
public:
    explicit LogModel(const Runtime::ListState& list, QObject* parent = nullptr);

    /// Tells the views what has been added, in time proportional to that, or that all is new.
    void keepUp();

    /// As it is in the store; empty for a row that isn't there.
    [[nodiscard]] StringView lineAt(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    [[nodiscard]] bool has(int row) const { return std::size_t(row) < list_.items.size(); }

    const Runtime::ListState& list_;
    std::uint64_t clears_;
    int shown_;
};

}  // namespace Orvo::Window
