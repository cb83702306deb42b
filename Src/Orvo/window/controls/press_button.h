#pragma once

#include <QAbstractButton>

#include "Orvo/window/controls/control.h"

namespace Orvo::Window {

/// What the buttons, options and check boxes have in common: every mouse button and key goes to the
/// store, and nothing changes but by its word.
class PressButton : public QAbstractButton, public Control {
public:
    PressButton(Runtime::Store& store, WidgetId id, QWidget* parent);
    void refresh() override;

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    /// The store checks and unchecks, not the click.
    void nextCheckState() final {}
};

}  // namespace Orvo::Window
