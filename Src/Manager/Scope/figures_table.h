#pragma once

#include <QTableWidget>

#include "Manager/Scope/plot_view.h"

namespace Orvo::Manager {

/// What is measured of each channel, a row each.
class FiguresTable final : public QTableWidget {
    Q_OBJECT

public:
    explicit FiguresTable(QWidget* parent = nullptr);

    /// Nothing is told of a channel that has no trace here. Old figures are drained of colour.
    void show(const PlotView& view);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

private:
    void showAge(bool isOld);

    bool isOld_ = false;
};

constexpr int kSwatch = 12;  // pixels

/// A square of a channel's colour.
QIcon swatchOf(Integer channel);

}  // namespace Orvo::Manager
