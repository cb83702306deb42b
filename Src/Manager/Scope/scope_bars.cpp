#include "Manager/Scope/scope_bars.h"

#include <QLabel>
#include <QToolBar>

#include "Manager/Scope/figures_table.h"
#include "Manager/Scope/plot_geometry.h"
#include "Manager/Scope/readings.h"
#include "Orvo/window/spoken/measures.h"

namespace Orvo::Manager {
namespace {

constexpr std::array kVolts{2, 5, 10, 20, 30, 50, 100};
constexpr int kPanelsVolts = 30;
constexpr std::array kSeconds{10e-6, 20e-6,  50e-6, 100e-6, 200e-6, 250e-6, 500e-6, 1e-3,
                              2e-3,  2.5e-3, 5e-3,  10e-3,  20e-3,  50e-3,  100e-3};

QToolBar* addBar(QMainWindow& window, const QString& name) {
    auto* bar = window.addToolBar(name);
    bar->setMovable(false);
    bar->setIconSize({kSwatch, kSwatch});
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    return bar;
}

}  // namespace

ScopeBars::ScopeBars(QMainWindow& window) : QObject(&window) {
    addSwitches(window);
    window.addToolBarBreak();
    addScales(window);
}

QAction* ScopeBars::add(QToolBar& bar, const QString& text, const QString& keys,
                        const QString& tip) {
    auto* action = bar.addAction(text);
    action->setShortcut(QKeySequence(keys));
    action->setToolTip(tip + " (" + action->shortcut().toString(QKeySequence::NativeText) + ")");
    return action;
}

QAction* ScopeBars::addSwitch(QToolBar& bar, const QString& text, const QString& keys,
                              const QString& tip) {
    auto* action = add(bar, text, keys, tip);
    action->setCheckable(true);
    connect(action, &QAction::toggled, this, &ScopeBars::changed);
    return action;
}

void ScopeBars::addSwitches(QMainWindow& window) {
    QToolBar& bar = *addBar(window, tr("What is shown"));
    hold_ = addSwitch(bar, tr("Hold"), "H", tr("Keep what is shown"));
    stacked_ = addSwitch(bar, tr("Stacked"), "S", tr("One channel below the other"));
    bar.addSeparator();
    for (Integer channel = 1; channel <= kChannels; ++channel) {
        const QString number = QString::number(channel);
        auto* action =
            addSwitch(bar, shortName(channel), number, tr("Show channel %1").arg(number));
        action->setIcon(swatchOf(channel));
        action->setChecked(true);
        channels_.at(std::size_t(channel - 1)) = action;
    }
    bar.addSeparator();
    timeCursors_ = addSwitch(bar, tr("Time cursors"), "T", tr("Two cursors for the time"));
    voltCursors_ = addSwitch(bar, tr("Volt cursors"), "V", tr("Two cursors for the level"));
    bar.addSeparator();
    connect(add(bar, tr("Picture…"), "Ctrl+S", tr("Save this as a picture")), &QAction::triggered,
            this, &ScopeBars::savePicture);
    connect(add(bar, tr("Samples…"), "Ctrl+T", tr("Save the samples as a table")),
            &QAction::triggered, this, &ScopeBars::saveSamples);
}

QComboBox* ScopeBars::addChoice(QToolBar& bar, const QString& label) const {
    auto* choice = new QComboBox;
    choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto* name = new QLabel(label);
    name->setBuddy(choice);
    name->setContentsMargins(8, 0, 4, 0);
    choice->setAccessibleName(QString(label).remove('&'));
    bar.addWidget(name);
    bar.addWidget(choice);
    connect(choice, &QComboBox::currentIndexChanged, this, &ScopeBars::changed);
    return choice;
}

void ScopeBars::addScales(QMainWindow& window) {
    QToolBar& bar = *addBar(window, tr("Scales"));
    volts_ = addChoice(bar, tr("V&olts / division"));
    for (const int volts : kVolts) volts_->addItem(QString::number(volts) + " V", volts);
    volts_->setCurrentIndex(volts_->findData(kPanelsVolts));
    time_ = addChoice(bar, tr("T&ime / division"));
    time_->addItem(tr("As the device says"));
    for (const double seconds : kSeconds) {
        time_->addItem(Window::withUnit(seconds, "s"), seconds);
    }
    time_->setToolTip(tr("For a device that doesn't tell how far apart its samples are"));
    source_ = addChoice(bar, tr("&Axis and cursors of"));
    for (Integer channel = 1; channel <= kChannels; ++channel) {
        source_->addItem(swatchOf(channel), shortName(channel));
    }
}

bool ScopeBars::isOn(Integer channel) const {
    return channels_.at(std::size_t(channel - 1))->isChecked();
}

void ScopeBars::applyTo(PlotView& view) const {
    view.arrangement = stacked_->isChecked() ? Arrangement::stacked : Arrangement::overlaid;
    view.voltsPerDivision = volts_->currentData().toDouble();
    view.source = Integer(source_->currentIndex() + 1);
    view.cursors.hasTime = timeCursors_->isChecked();
    view.cursors.hasVolts = voltCursors_->isChecked();
}

std::optional<double> ScopeBars::chosenInterval(std::size_t samples) const {
    const QVariant seconds = time_->currentData();
    if (!seconds.isValid() || samples < 2) return std::nullopt;
    return seconds.toDouble() * kColumns / double(samples - 1);
}

}  // namespace Orvo::Manager
