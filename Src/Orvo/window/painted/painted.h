#pragma once

#include <QRect>

#include "Orvo/store/store.h"
#include "Orvo/store/stored_widgets.h"
#include "Orvo/window/drawing/scale.h"

class QPainter;

namespace Orvo::Window {

/// A widget that takes no input and is painted on its page, straight from the store: labels,
/// shapes, lines, frames, digits, images and the scopes' headers.
class Painted {
public:
    Painted(const Runtime::Store& store, WidgetId id) : store_(store), id_(id) {}
    virtual ~Painted() = default;
    Painted(const Painted&) = delete;
    Painted& operator=(const Painted&) = delete;

    /// Where it is for a person who points at it, in pixels of the page.
    [[nodiscard]] virtual QRect bounds() const { return place(); }
    /// Everything that `paint` may touch as the widget is now.
    [[nodiscard]] virtual QRect ink() const { return bounds(); }
    /// The same without what is faint at its edges.
    [[nodiscard]] virtual QRect core() const { return ink(); }
    /// Sets what it needs of the painter, and leaves its clip and coordinates as they were.
    virtual void paint(QPainter& painter) const = 0;
    /// Whether it is a lamp that is lit. Such a one fades in.
    [[nodiscard]] virtual bool isLampLit() const { return false; }
    /// The same as `paint`, but with only this share of the light.
    virtual void paintFading(QPainter& painter, double /*share*/) const { paint(painter); }
    /// Whether it looks as the layout has it, and may well stay so: it can be kept in a picture.
    [[nodiscard]] virtual bool isAsLaidOut() const { return false; }
    /// Called before anything else, and for each change of the zoom.
    virtual void layOut(const Scale& scale) { scale_ = scale; }

    [[nodiscard]] bool isShown() const { return store_.isShown(id_); }

protected:
    template <class Stored>
    [[nodiscard]] const auto& stored() const {
        return store_.get<Stored>(id_).state();
    }
    [[nodiscard]] const Layout::Widget& description() const { return Layout::describe(id_); }
    [[nodiscard]] const Layout::Style& looks() const { return description().style; }
    [[nodiscard]] const Scale& scale() const { return scale_; }
    [[nodiscard]] QRect place() const { return scale_.rect(id_); }

private:
    const Runtime::Store& store_;
    WidgetId id_;
    Scale scale_{1};
};

}  // namespace Orvo::Window
