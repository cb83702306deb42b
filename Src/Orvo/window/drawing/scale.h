#pragma once

#include <QPoint>
#include <QRect>
#include <QtMath>

#include "Orvo/layout/layout.h"

namespace Orvo::Window {

using Widgets::WidgetId;

/// Where a container's corner lies on the panel, in twips.
struct Corner {
    int left = 0;
    int top = 0;
};

constexpr Corner cornerOf(WidgetId container) {
    Corner corner;
    for (WidgetId id = container; id != Layout::kPanel; id = Layout::describe(id).container) {
        corner.left += Layout::describe(id).place.left;
        corner.top += Layout::describe(id).place.top;
    }
    return corner;
}

/// The tab of the panel that a widget belongs to, whatever it is contained in; the first for the
/// tabs themselves.
constexpr int pageOf(WidgetId id) {
    int tab = 0;
    for (; id != Layout::kTabs; id = Layout::describe(id).container) tab = Layout::describe(id).tab;
    return tab;
}

/// From twips to pixels: the one place where the factor is applied. It is edges that are rounded,
/// not sizes, so that what adjoins in twips adjoins on the screen.
class Scale {
public:
    explicit Scale(double zoom) : zoom_(zoom) {}

    [[nodiscard]] double zoom() const { return zoom_; }

    [[nodiscard]] int pixels(int twips) const {
        return qRound(twips * zoom_ / Layout::kTwipsPerPixel);
    }
    [[nodiscard]] QPoint point(int left, int top) const { return {pixels(left), pixels(top)}; }
    [[nodiscard]] QRect rect(int left, int top, int width, int height) const {
        return {point(left, top), point(left + width, top + height) - QPoint(1, 1)};
    }
    /// A widget's place on the panel; not for lines.
    [[nodiscard]] QRect rect(WidgetId id) const {
        const auto& [left, top, width, height] = Layout::describe(id).place;
        const Corner corner = cornerOf(Layout::describe(id).container);
        return rect(corner.left + left, corner.top + top, width, height);
    }
    [[nodiscard]] QSize panelSize() const {
        return {pixels(Layout::kPanelWidth), pixels(Layout::kPanelHeight)};
    }

    /// A measure of the drawing itself, such as a pen or a radius, from pixels at zoom 1.
    [[nodiscard]] double measure(double pixels) const { return pixels * zoom_; }
    /// The same in whole pixels, never nothing.
    [[nodiscard]] int thickness(double pixels) const { return qMax(1, qRound(pixels * zoom_)); }

private:
    double zoom_;
};

}  // namespace Orvo::Window
