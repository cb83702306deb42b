#pragma once

#include <QColor>

// The window's own colours; what the panel lays out or writes has its colours from there.
namespace Orvo::Window::Palette {

constexpr QColor kFocus(40, 128, 240);
constexpr QColor kFocusInside(255, 255, 255, 170);

constexpr QColor kPage(24, 29, 38);
constexpr QColor kDarkGround(50, 58, 73);
constexpr QColor kLightGround(240, 242, 246);
constexpr QColor kBacking(14, 16, 20);
constexpr QColor kCaptionBand(46, 50, 58);
constexpr QColor kLampCore(255, 255, 255);
constexpr QColor kLampRim(136, 144, 158, 150);

constexpr QColor kFaceGleam(255, 255, 255, 90);
constexpr QColor kDisabledCaption(84, 84, 84);

constexpr QColor kOptionRing(225, 230, 238);
constexpr QColor kDisabledOptionRing(125, 130, 138);
constexpr QColor kOption(20, 24, 32);
constexpr QColor kPointedOption(52, 60, 76);

constexpr QColor kDisabledVeil(40, 46, 58, 170);
constexpr QColor kPointedVeil(255, 255, 255, 20);

constexpr QColor kComboEdge(130, 134, 144);
constexpr QColor kDisabledComboInk(105, 105, 110);

constexpr QColor kSelectedLine(0, 78, 22);
constexpr QColor kScrollBar(28, 32, 38);
constexpr QColor kScrollHandle(92, 100, 112);
constexpr QColor kHeldScrollHandle(130, 140, 152);

constexpr QColor kScopeFrame(96, 104, 116);
constexpr QColor kScopeShade(10, 12, 16);

constexpr QColor kSlider(14, 16, 20);
constexpr QColor kMainTick(190, 196, 206);
constexpr QColor kTick(128, 135, 147);
constexpr QColor kGroove(0, 0, 0);
constexpr QColor kGrooveEdge(84, 91, 102);
constexpr QColor kCapShadow(0, 0, 0, 130);
constexpr QColor kCapEdge(24, 27, 32);
constexpr QColor kCapIndex(176, 24, 24);
constexpr QColor kDisabledCapIndex(60, 62, 66);

// What must not be overlooked, on whatever ground.
constexpr QColor kWarning(255, 204, 51);

constexpr QColor kBubble(250, 250, 244);
constexpr QColor kBubbleText(20, 24, 32);

constexpr QColor kTabStrip(70, 77, 90);
constexpr QColor kCommonTab(233, 235, 239);
constexpr QColor kPairTab(36, 43, 55);
constexpr QColor kTabBehind(92, 100, 115);
constexpr QColor kPointedTab(108, 117, 134);
constexpr QColor kTabBehindText(222, 226, 233);
constexpr QColor kPointedTabText(255, 255, 255);
constexpr QColor kDisabledTab(78, 85, 98);
constexpr QColor kDisabledTabText(130, 137, 150);

}  // namespace Orvo::Window::Palette
