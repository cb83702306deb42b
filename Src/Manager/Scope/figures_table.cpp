#include "Manager/Scope/figures_table.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QHeaderView>
#include <QPainter>

#include "Manager/Scope/plot_palette.h"
#include "Manager/Scope/readings.h"

namespace Orvo::Manager {

QIcon swatchOf(Integer channel) {
    QPixmap swatch(kSwatch, kSwatch);
    swatch.fill(PlotPalette::kGround);
    QPainter(&swatch).fillRect(swatch.rect().adjusted(2, 2, -2, -2),
                               PlotPalette::kTraces.at(std::size_t(channel - 1)));
    return swatch;
}

FiguresTable::FiguresTable(QWidget* parent)
    : QTableWidget(kChannels, int(kFigures.size()), parent) {
    setAccessibleName(tr("Measurements"));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setFrameShape(NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setHighlightSections(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    for (int column = 0; column < columnCount(); ++column) {
        setHorizontalHeaderItem(column, new QTableWidgetItem(tr(kFigures.at(std::size_t(column)))));
    }
    for (Integer channel = 1; channel <= kChannels; ++channel) {
        setVerticalHeaderItem(channel - 1,
                              new QTableWidgetItem(swatchOf(channel), shortName(channel)));
    }
    show({});
}

void FiguresTable::show(const PlotView& view) {
    showAge(view.isOld);
    const auto& traces = view.traces;
    for (Integer channel = 1; channel <= kChannels; ++channel) {
        const auto trace = std::ranges::find(traces, channel, &ScopeTrace::channel);
        const auto texts = figureTexts(trace != traces.end() ? *trace : ScopeTrace{});
        for (int column = 0; column < columnCount(); ++column) {
            if (item(channel - 1, column) == nullptr) {
                setItem(channel - 1, column, new QTableWidgetItem);
                item(channel - 1, column)->setTextAlignment(Qt::AlignCenter);
            }
            item(channel - 1, column)->setText(texts.at(std::size_t(column)));
        }
    }
}

void FiguresTable::showAge(bool isOld) {
    if (std::exchange(isOld_, isOld) == isOld) return;
    QPalette colours = QApplication::palette(this);
    if (isOld) colours.setColor(QPalette::Text, colours.color(QPalette::PlaceholderText));
    setPalette(colours);
}

QSize FiguresTable::sizeHint() const {
    return {480, horizontalHeader()->sizeHint().height() + verticalHeader()->length()};
}

}  // namespace Orvo::Manager
