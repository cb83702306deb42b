#pragma once

#include <memory>

#include <QRect>

#include "Orvo/store/store.h"
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

    /// Everything that `paint` may touch as the widget is now, in pixels of the page.
    [[nodiscard]] virtual QRect bounds() const = 0;
    virtual void paint(QPainter& painter) const = 0;
    /// Called before anything else, and for each change of the zoom.
    virtual void layOut(const Scale& scale) = 0;

    [[nodiscard]] bool isShown() const { return store_.isShown(id_); }

protected:
    template <class Stored>
    [[nodiscard]] const auto& stored() const {
        return store_.get<Stored>(id_).state();
    }
    [[nodiscard]] const Layout::Widget& description() const { return Layout::describe(id_); }
    [[nodiscard]] const Layout::Style& looks() const { return description().style; }
    [[nodiscard]] WidgetId id() const { return id_; }

private:
    const Runtime::Store& store_;
    WidgetId id_;
};

/// Null for kinds that are not painted.
std::unique_ptr<Painted> makePainted(const Runtime::Store& store, WidgetId id);

}  // namespace Orvo::Window
