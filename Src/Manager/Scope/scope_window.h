#pragma once

#include <QDateTime>
#include <QLabel>
#include <QMainWindow>
#include <QTimer>

#include "Manager/Scope/figures_table.h"
#include "Manager/Scope/plot.h"
#include "Manager/Scope/scope_bars.h"
#include "Manager/Station/station.h"

namespace Orvo::Manager {

/// The traces of all channels, large, with cursors and what is measured of them. What is new is
/// shown up to 30 times a second while the window is to be seen.
class ScopeWindow final : public QMainWindow {
    Q_OBJECT

public:
    /// The station must live as long.
    explicit ScopeWindow(const Station& station, QWidget* parent = nullptr);

    /// Shows what is new; that happens by itself.
    void refresh();

    /// Plot, cursors and figures, as they are shown.
    [[nodiscard]] QImage picture();

signals:
    void pictureWanted(const QImage& picture);
    void samplesWanted(const std::vector<ScopeTrace>& traces);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void takeTraces();
    [[nodiscard]] QString oldness();
    void redraw();
    void showFigures();

    const Station& station_;
    ScopeBars* const bars_;
    Plot* const plot_;
    QLabel* const cursorText_;
    FiguresTable* const figures_;
    QTimer tick_;
    QTimer figuresTick_;
    std::vector<ScopeTrace> taken_;  // of all channels, as last shown
    std::optional<std::uint64_t> revision_;
    QDateTime heldSince_;
    QDateTime oldSince_;
    QString note_;
    bool areFiguresOld_ = true;
};

}  // namespace Orvo::Manager
