#include "Orvo/window/drawing/scale.h"

#include <gtest/gtest.h>

namespace Orvo::Window {
namespace {

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

}  // namespace
}  // namespace Orvo::Window
