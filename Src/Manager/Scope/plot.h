#pragma once

#include <optional>

#include <QWidget>

#include "Manager/Scope/plot_geometry.h"

namespace Orvo::Manager {

/// The traces on a graticule, with cursors that the mouse drags and the arrow keys move: the active
/// one of each pair, by a tenth of a division, with Shift by a whole one and with Ctrl by a
/// hundredth. Space makes the others active.
class Plot final : public QWidget {
    Q_OBJECT

public:
    explicit Plot(QWidget* parent = nullptr);

    [[nodiscard]] const PlotView& view() const { return view_; }
    void show(const PlotView& view);
    /// Where things lie on it.
    [[nodiscard]] PlotGeometry places() const;

    [[nodiscard]] QSize sizeHint() const override { return {820, 420}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {320, 180}; }

signals:
    void cursorsMoved(const Cursors& cursors);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// One of the cursors.
    struct Handle {
        Qt::Orientation moves{};
        std::size_t number = 0;
    };

    [[nodiscard]] std::optional<Handle> handleAt(const QPointF& place) const;
    void drag(const QPointF& place);
    void step(Qt::Orientation direction, double divisions);
    void move(const Cursors& cursors);

    PlotView view_;
    std::optional<Handle> held_;
};

}  // namespace Orvo::Manager
