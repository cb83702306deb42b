#pragma once

#include <functional>
#include <memory>

#include <QWidget>

#include "Orvo/widgets/reference.h"
#include "Orvo/window/clock.h"

namespace Orvo {
class MarvaneAssistant;
struct Platform;
}  // namespace Orvo
namespace Orvo::Runtime {
class Store;
}

namespace Orvo::Window {

/// The panel in a window: the one widget that a host embeds. It needs a QApplication, and all calls
/// from the thread that this runs in.
///
/// Deleting it releases the panel, also from within a handler of one of the panel's events.
class PanelWidget : public QWidget {
    Q_OBJECT

public:
    /// Start-up is over when this returns. Throws what start-up throws. The panel knows no ports of
    /// the machine; the other constructor tells it of some.
    explicit PanelWidget(QWidget* parent = nullptr);
    /// With what the panel is given of the machine, such as Runtime::machinePlatform().
    explicit PanelWidget(const Platform& platform, QWidget* parent = nullptr,
                         Clock clock = Clock::real);
    ~PanelWidget() override;

    [[nodiscard]] MarvaneAssistant& panel() const;
    [[nodiscard]] Runtime::Store& store() const;

    /// 1 is the layout's own size, 709 x 460 pixels. Anything below 0.5 is 0.5, above 8 is 8. The
    /// panel stands in the middle of a larger widget.
    [[nodiscard]] double zoom() const;
    void setZoom(double zoom);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    /// Releases the panel and creates a fresh one in its place, with fresh widgets; also from
    /// within a handler of one of the panel's events. `panel()` stays the same object, but nothing
    /// is connected to it; `store()` is another one. Throws what start-up throws, and the present
    /// panel stays then. `ending` is called, and throws nothing, before the present one goes.
    void renew(const std::function<void()>& ending = [] {});

    /// The control of a widget, such as a button or a scope, until `renew`; null for a widget that
    /// is only painted.
    [[nodiscard]] QWidget* control(Widgets::WidgetId widget) const;

    /// What the panel changes is on the screen a frame later; this brings it there now, for
    /// instance for a `grab`.
    void flush();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void centre();

    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace Orvo::Window
