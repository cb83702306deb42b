#pragma once

#include <functional>
#include <memory>

#include "Orvo/export.h"
#include "Orvo/widgets/reference.h"
#include "Orvo/window/clock.h"
#include "Orvo/window/panel_interface.h"

namespace Orvo {
struct Platform;
}
namespace Orvo::Runtime {
class Store;
}

namespace Orvo::Window {

/// The panel in a window: the one widget that a host embeds. It needs a QApplication, and all calls
/// from the thread that this runs in.
///
/// Deleting it releases the panel, also from within a handler of one of the panel's events, or from
/// within a slot that one of these signals is connected to.
///
/// The panel looks the same on every desktop: its colours, fonts and directions are the layout's,
/// in whatever style, palette, font and language the host's window is; only a style sheet reaches
/// its controls, if it selects them. What opens over it, a prompt, a tooltip or a list, follows the
/// desktop.
class ORVO_EXPORT PanelWidget : public PanelInterface {
    Q_OBJECT
    Q_PROPERTY(double zoom READ zoom WRITE setZoom RESET resetZoom NOTIFY zoomChanged)
    Q_PROPERTY(bool fitsToSize READ fitsToSize WRITE setFitsToSize NOTIFY fitsToSizeChanged)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly NOTIFY readOnlyChanged)

public:
    /// Start-up is over when this returns. Throws what start-up throws. The panel knows no ports of
    /// the machine; the other constructor tells it of some.
    explicit PanelWidget(QWidget* parent = nullptr);
    /// With what the panel is given of the machine, such as Runtime::machinePlatform().
    explicit PanelWidget(const Platform& platform, QWidget* parent = nullptr,
                         Clock clock = Clock::real);
    ~PanelWidget() override;

    [[nodiscard]] MarvaneAssistant& panel() const override;
    [[nodiscard]] Runtime::Store& store() const;

    /// 1 is the layout's own size, 709 x 460 pixels. Anything below 0.5 is 0.5, above 8 is 8. On a
    /// larger widget the panel stands at the top in the middle, and its ground goes on around it.
    [[nodiscard]] double zoom() const;
    Q_SLOT void setZoom(double zoom);
    Q_SLOT void resetZoom() { setZoom(1); }

    /// Whether the zoom follows the widget's size, as far as its bounds allow, with the layout's
    /// proportions: after each resize the panel is as large as fits. Off at first. A zoom that is
    /// set while this is on says how large the widget would like to be, and holds until the next
    /// resize.
    [[nodiscard]] bool fitsToSize() const { return fitsToSize_; }
    Q_SLOT void setFitsToSize(bool fits);

    /// Whether the panel's `ReadOnly` is on, which keeps a person from changing anything.
    [[nodiscard]] bool isReadOnly() const;
    Q_SLOT void setReadOnly(bool readOnly);

    /// The panel as large as its zoom has it.
    [[nodiscard]] QSize sizeHint() const override;
    /// The same; while it fits to its size, the panel at the smallest zoom.
    [[nodiscard]] QSize minimumSizeHint() const override;
    /// By the layout's proportions, while it fits to its size.
    [[nodiscard]] bool hasHeightForWidth() const override { return fitsToSize_; }
    [[nodiscard]] int heightForWidth(int width) const override;

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

Q_SIGNALS:
    void zoomChanged(double zoom);
    void fitsToSizeChanged(bool fits);
    /// A frame later when the host wrote it at the panel itself; never from within that call.
    void readOnlyChanged(bool readOnly);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange();
    void centre();
    void fit();
    void noteReadOnly();

    struct Parts;
    std::unique_ptr<Parts> parts_;
    bool fitsToSize_ = false;
    bool wasReadOnly_ = false;  // when that was last told
};

}  // namespace Orvo::Window
