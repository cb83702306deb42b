#pragma once

#include <memory>
#include <vector>

#include <QWidget>

#include "Runtime/Qt/painted.h"

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

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Layer {
        WidgetId id;
        std::unique_ptr<Painted> painted;
        QRect bounds;  // as last asked for
    };

    std::vector<Layer> layers_;
};

}  // namespace Orvo::Window
