#pragma once

#include <array>
#include <bitset>
#include <memory>
#include <optional>
#include <vector>

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include "Orvo/store/screen.h"
#include "Orvo/window/clock.h"
#include "Orvo/window/controls/control.h"
#include "Orvo/window/controls/tab_strip.h"
#include "Orvo/window/painted/page.h"
#include "Orvo/window/prompt_dialog.h"
#include "Orvo/window/ticker.h"

namespace Orvo::Window {

/// The screen of a store: the tab strip, the three pages and the controls on them. What the store
/// reports as changed is noted and brought to the screen once per frame.
class PanelScreen final : public QWidget, public Runtime::Screen {
    Q_OBJECT

public:
    explicit PanelScreen(std::shared_ptr<Runtime::Store> store, QWidget* parent = nullptr,
                         Clock clock = Clock::real);
    ~PanelScreen() override;

    [[nodiscard]] double zoom() const { return scale_.zoom(); }
    void setZoom(double zoom);

    /// Null for what is only painted.
    [[nodiscard]] QWidget* control(WidgetId widget);

    /// What goes on around the panel on a larger widget, in this one's coordinates.
    void paintAround(QPainter& painter, const QRect& place) const;

    /// Brings what has changed to the screen now, as it is in the end.
    void flush();
    void changed(WidgetId widget) override;
    void pointerChanged() override;

Q_SIGNALS:
    /// A frame shows that the host may have changed it.
    void readOnlyWritten();

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void build();
    void fill(int tab);
    void layOut();
    void addTabShortcut(const QKeySequence& keys, int direction);
    void noteWithContents(WidgetId widget);
    void scheduleFrame();
    void bringFrame();
    void bringToScreen(WidgetId widget);
    void bringTabToFront();

    const std::shared_ptr<Runtime::Store> store_;
    Scale scale_{1.0};
    TabStrip* tabs_ = nullptr;
    std::vector<Page*> pages_;
    std::array<Control*, Layout::kWidgetCount> controls_{};  // of the tabs looked at so far
    std::bitset<Layout::kTabCaptions.size()> filled_;
    std::bitset<Layout::kWidgetCount> dirty_;
    QTimer frame_;
    QElapsedTimer sinceFrame_;
    std::optional<Ticker> ticker_;  // none when the clock is run by hand
    PromptDialog prompt_{*this};
};

}  // namespace Orvo::Window
