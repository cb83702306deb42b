#pragma once

#include <memory>
#include <vector>

#include <QWidget>

#include "Orvo/window/painted/painted.h"

class QHelpEvent;

namespace Orvo::Window {

/// One tab of the panel: the surface on which everything that takes no input is painted, layered in
/// the layout's order, and the parent of the controls. It is as large as the panel, so that its
/// pixels are the panel's; the tab strip covers its top.
class Page final : public QWidget {
public:
    Page(const Runtime::Store& store, int tab, QWidget* parent);

    void layOut(const Scale& scale);
    /// Has the widget painted again, where it was and where it is. False when it isn't one of its
    /// own painted ones.
    bool repaintWidget(WidgetId id);

    [[nodiscard]] int tab() const { return tab_; }
    [[nodiscard]] const Runtime::Store& store() const { return store_; }
    /// The painted widgets that have something to say, in the layout's order; a readout's first
    /// digit stands for all of them.
    [[nodiscard]] const std::vector<WidgetId>& speakers() const { return speakers_; }
    /// Where one of them is, in pixels of the page.
    [[nodiscard]] QRect placeOf(WidgetId speaker) const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Layer {
        WidgetId id;
        std::unique_ptr<Painted> painted;
        QRect bounds;  // as last asked for
    };

    /// The number of layers when the widget isn't one.
    [[nodiscard]] std::size_t layerOf(WidgetId id) const;
    [[nodiscard]] QRect boundsOf(WidgetId id) const;
    void showTip(const QHelpEvent& event);

    const Runtime::Store& store_;
    const int tab_;
    std::vector<Layer> layers_;
    std::vector<WidgetId> speakers_;
};

}  // namespace Orvo::Window
