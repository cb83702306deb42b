#pragma once

#include <array>

#include "Orvo/window/controls/press_button.h"
#include "Orvo/window/drawing/kept_picture.h"

namespace Orvo::Window {

class CommandButton final : public PressButton {
public:
    using PressButton::PressButton;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// One of the exclusive options of a container. The keyboard's tab stops at the selected one alone,
/// the arrows go round the others.
class OptionButton final : public PressButton {
public:
    using PressButton::PressButton;
    void refresh() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] bool isTabStop() const;
    void selectNext(int step);
};

/// A check box that looks like a power switch: up for off, down and lit for on.
class PowerButton final : public PressButton {
public:
    using PressButton::PressButton;
    void layOut(const Scale& scale) override;
    void refresh() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawVeil(QPainter& painter, QColor colour) const;

    std::array<KeptPicture, 2> pictures_;  // let out, pressed in
};

}  // namespace Orvo::Window
