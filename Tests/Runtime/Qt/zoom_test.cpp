#include "window_fixture.h"

namespace Orvo::Window {
namespace {

TEST(ScaleTest, ATwipIsAFifteenthOfAPixel) {
    EXPECT_EQ(Scale(1).panelSize(), QSize(709, 460));
    EXPECT_EQ(Scale(2).panelSize(), QSize(1418, 920));
}

TEST(ScaleTest, WhatAdjoinsInTwipsAdjoinsOnTheScreen) {
    for (const double zoom : {1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        const Scale scale(zoom);
        for (int left = 0; left < 300; left += 7) {
            const QRect one = scale.rect(left, 0, 97, 10);
            const QRect next = scale.rect(left + 97, 0, 50, 10);
            ASSERT_EQ(one.right() + 1, next.left()) << zoom << " " << left;
        }
    }
}

class ZoomTest : public WindowTest {};

TEST_F(ZoomTest, EverythingGrowsWithTheZoom) {
    front_.setZoom(1.5);
    EXPECT_EQ(front_.size(), Scale(1.5).panelSize());
    EXPECT_EQ(control("cmdOnOff").geometry(), Scale(1.5).rect(idOf("cmdOnOff")));
    EXPECT_EQ(control("cmdOnOff").font().pixelSize(), 17);
}

}  // namespace
}  // namespace Orvo::Window
