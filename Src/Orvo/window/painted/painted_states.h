#pragma once

#include <vector>

#include "Orvo/window/drawing/kept_picture.h"
#include "Orvo/window/painted/painted.h"

namespace Orvo::Window {

/// A widget that looks one of a few ways, such as a lamp. All of its looks and size share a kept
/// picture of each.
class PaintedStates : public Painted {
public:
    using Painted::Painted;
    void layOut(const Scale& scale) final;
    void paint(QPainter& painter) const final { paintState(painter, state()); }

protected:
    void paintState(QPainter& painter, int state) const;
    [[nodiscard]] virtual int states() const = 0;
    /// The one that it is in, from 0.
    [[nodiscard]] virtual int state() const = 0;
    /// Draws on the page, from the layout alone.
    virtual void draw(QPainter& painter, int state) const = 0;

private:
    [[nodiscard]] QString key(int state) const;

    QRect cell_;
    mutable std::vector<KeptPicture> pictures_;
};

}  // namespace Orvo::Window
