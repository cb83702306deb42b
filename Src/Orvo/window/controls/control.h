#pragma once

#include <QWidget>

#include "Orvo/store/store.h"
#include "Orvo/store/stored_widgets.h"
#include "Orvo/window/drawing/scale.h"
#include "Orvo/window/drawing/text.h"

namespace Orvo::Window {

using Runtime::Deed;

/// What a real Qt control has besides Qt's own: the widget of the store that it stands for. It
/// shows what the store says and hands on what a person does; a rule about either is the store's.
///
/// A handler of the host may delete the control from within any call of the store's input, so that
/// call is the last thing that an event handler does, or is followed by a check.
class Control {
public:
    /// `self` is the control as a Qt widget; it is given the layout's name.
    Control(QWidget& self, Runtime::Store& store, WidgetId id);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// Place and font. Called before anything else, and for each change of the zoom.
    virtual void layOut(const Scale& scale);
    /// Brings what the store says to the screen.
    virtual void refresh();

    [[nodiscard]] QWidget& self() const { return self_; }
    [[nodiscard]] WidgetId id() const { return id_; }
    [[nodiscard]] const Runtime::Store& store() const { return store_; }

protected:
    template <class Stored>
    [[nodiscard]] const auto& stored() const {
        return store_.get<Stored>(id_).state();
    }
    [[nodiscard]] const Layout::Widget& description() const { return Layout::describe(id_); }
    [[nodiscard]] const Layout::Style& looks() const { return description().style; }
    bool perform(const Deed& deed) { return store_.perform(deed); }
    [[nodiscard]] double zoom() const { return zoom_; }

    /// The wheel with Ctrl is left to whoever shows the panel.
    [[nodiscard]] static bool isForHost(const QWheelEvent& event);

    /// Whether it is there, and takes input.
    void refreshPresence();

    /// Hands a mouse button on, but for the further ones that some mice have.
    void press(QMouseEvent& event);
    void release(QMouseEvent& event);

private:
    QWidget& self_;
    Runtime::Store& store_;
    WidgetId id_;
    double zoom_ = 1;
};

/// Null for kinds that take no input.
Control* makeControl(Runtime::Store& store, WidgetId id, QWidget* parent);

}  // namespace Orvo::Window
