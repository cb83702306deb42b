#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>

#include <QAction>
#include <QComboBox>
#include <QMainWindow>

#include "Manager/Scope/plot_view.h"

namespace Orvo::Manager {

/// What a person chooses above a plot: what it shows, and to what scale.
class ScopeBars final : public QObject {
    Q_OBJECT

public:
    explicit ScopeBars(QMainWindow& window);

    [[nodiscard]] bool isHeld() const { return hold_->isChecked(); }
    [[nodiscard]] bool isOn(Integer channel) const;
    /// What is chosen, in place of what the view has of it.
    void applyTo(PlotView& view) const;
    /// From one of so many samples to the next, in seconds, when the person knows the time.
    [[nodiscard]] std::optional<double> chosenInterval(std::size_t samples) const;

signals:
    void changed();
    void savePicture();
    void saveSamples();

private:
    void addSwitches(QMainWindow& window);
    void addScales(QMainWindow& window);
    QAction* add(QToolBar& bar, const QString& text, const QString& keys, const QString& tip);
    QAction* addSwitch(QToolBar& bar, const QString& text, const QString& keys, const QString& tip);
    QComboBox* addChoice(QToolBar& bar, const QString& label) const;

    QAction* hold_ = nullptr;
    QAction* stacked_ = nullptr;
    std::array<QAction*, kChannels> channels_{};
    QAction* timeCursors_ = nullptr;
    QAction* voltCursors_ = nullptr;
    QComboBox* volts_ = nullptr;
    QComboBox* time_ = nullptr;
    QComboBox* source_ = nullptr;
};

}  // namespace Orvo::Manager
