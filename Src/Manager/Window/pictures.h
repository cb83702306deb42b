#pragma once

#include <QByteArray>
#include <QImage>

#include "Orvo/window/panel_widget.h"

namespace Orvo::Manager {

/// The panel as it stands on the screen, whatever part of it is in sight.
QImage pictureOf(Window::PanelWidget& panel);

/// A channel's scope, 1 to 4, large enough to be read on paper.
QImage pictureOfScope(Window::PanelWidget& panel, int channel);

QByteArray toPng(const QImage& image);

}  // namespace Orvo::Manager
