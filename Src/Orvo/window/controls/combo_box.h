#pragma once

#include <QComboBox>

#include "Orvo/window/controls/control.h"

namespace Orvo::Window {

/// Shows the store's text, which need not be one of the items. Characters go to the store, which
/// edits the text or not; the list opens and picks as Qt has it.
class ComboBox final : public QComboBox, public Control {
public:
    ComboBox(Runtime::Store& store, WidgetId id, QWidget* parent);
    void refresh() override;
    void showPopup() override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void pick(int item);
    void drawChosen(QPainter& painter, const QRectF& room) const;
};

}  // namespace Orvo::Window
