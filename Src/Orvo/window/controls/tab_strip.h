#pragma once

#include <array>

#include <QTabBar>

#include "Orvo/window/controls/control.h"

namespace Orvo::Window {

/// The panel's tabs. The one in front takes the colours of its page.
class TabStrip final : public QTabBar, public Control {
public:
    TabStrip(Runtime::Store& store, QWidget* parent);
    void layOut(const Scale& scale) override;
    void refresh() override;

    /// Brings the next enabled tab in this direction to the front, round the end.
    void step(int direction);

protected:
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    [[nodiscard]] QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void select(int tab);
    void drawTab(QPainter& painter, int tab) const;

    int pointedAt_ = -1;
    std::array<int, Layout::kTabCaptions.size()> widths_{};  // Qt asks for them again and again
};

}  // namespace Orvo::Window
