#pragma once

#include <vector>

#include <gtest/gtest.h>

#include <QImage>

#include "Orvo/core/marvane_assistant.h"
#include "Orvo/store/store.h"
#include "Orvo/window/drawing/scale.h"
#include "Orvo/window/panel_widget.h"

namespace Orvo::Window {

/// Compares with the reference picture of this name, and leaves the picture and the difference.
///
/// ORVO_ACCEPT=1 ./test -R Pictures paints the reference pictures anew; a review then looks at
/// them.
void expectAsKept(const char* name, const QImage& actual, const std::vector<QRect>& texts);

/// A panel that shows something of everything.
class PicturesTest : public testing::Test {
protected:
    PicturesTest();

    QImage picture(int tab);

    PanelWidget widget_{Platform{}, nullptr, Clock::byHand};
    MarvaneAssistant& panel_ = widget_.panel();
    Runtime::Store& store_ = widget_.store();

private:
    void showChannel(Integer channel);
};

}  // namespace Orvo::Window
