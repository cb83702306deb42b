#pragma once

#include <QScrollArea>

#include "Manager/Window/veil.h"
#include "Orvo/window/panel_widget.h"

namespace Orvo::Manager {

// The sizes of the panel, in percent.
constexpr int kSmallestZoom = 50;
constexpr int kLargestZoom = 800;
constexpr int kPlainZoom = 100;

/// The next size that the zoom keys stop at; the end when there is none.
int nextLarger(int zoom);
int nextSmaller(int zoom);

/// The panel at a size of choice, with scroll bars where the window is smaller.
class ZoomArea final : public QScrollArea {
public:
    /// Takes the panel over.
    explicit ZoomArea(Window::PanelWidget& panel, QWidget* parent = nullptr);

    [[nodiscard]] int zoom() const;
    /// Ends `setFitting`.
    void setZoom(int percent);

    /// As large as fits, however large this is, until a zoom is set.
    void setFitting(bool isFitting);
    [[nodiscard]] bool isFitting() const { return isFitting_; }

    /// Veils the panel, and says why; an empty text lifts the veil.
    void veil(const QString& text) { veil_->showText(text); }

    /// The panel without scroll bars.
    [[nodiscard]] QSize sizeHint() const override;

    /// How large a window as large as this has to be where there is only so much room: beside a
    /// scroll bar for one direction, the other still needs all of its own.
    [[nodiscard]] QSize bounded(const QSize& window, const QSize& room) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void fit();

    Window::PanelWidget& panel_;
    Veil* const veil_;
    bool isFitting_ = false;
};

}  // namespace Orvo::Manager
