#pragma once

#include <array>
#include <optional>

#include <QScrollArea>

#include "Manager/Window/veil.h"
#include "Orvo/window/panel_widget.h"

namespace Orvo::Manager {

// The sizes of the panel, in percent.
constexpr int kSmallestZoom = 50;
constexpr int kLargestZoom = 800;
constexpr int kPlainZoom = 100;

// Those that a person chooses by name.
constexpr auto kPresets = std::to_array({kSmallestZoom, 75, kPlainZoom, 125, 150, 200, 300, 400});

/// The next size that the zoom keys stop at; the end when there is none.
int nextLarger(int zoom);
int nextSmaller(int zoom);

/// The panel, as large as fits or at a size of choice, with scroll bars where this is smaller. The
/// wheel with Ctrl goes from size to size.
class ZoomArea final : public QScrollArea {
public:
    /// Takes the panel over.
    explicit ZoomArea(Window::PanelWidget& panel, QWidget* parent = nullptr);

    [[nodiscard]] int zoom() const;
    /// The size that was chosen; none: as large as fits, however large this is.
    [[nodiscard]] std::optional<int> chosenZoom() const;
    void choose(std::optional<int> percent);
    void zoomIn() { choose(nextLarger(zoom())); }
    void zoomOut() { choose(nextSmaller(zoom())); }

    /// Makes the panel, which goes on to fit, so large that it leaves some of the room to others.
    void suit(const QSize& room);

    /// Veils the panel, and says why; an empty text lifts the veil.
    void veil(const QString& text) { veil_->showText(text); }

    /// The panel without scroll bars.
    [[nodiscard]] QSize sizeHint() const override;

    /// How large a window as large as this has to be where there is only so much room: beside a
    /// scroll bar for one direction, the other still needs all of its own.
    [[nodiscard]] QSize bounded(const QSize& window, const QSize& room) const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    Window::PanelWidget& panel_;
    Veil* const veil_;
    int wheel_ = 0;
};

}  // namespace Orvo::Manager
