#include "Manager/Window/frame_palette.h"

#include <QApplication>
#include <QToolTip>

#include "Orvo/window/drawing/contrast.h"

namespace Orvo::Manager {
namespace {

namespace Panel = Window::Palette;

struct Colours {
    QColor ground;
    QColor text;
    QColor field;
    QColor button;
    QColor disabled;
    QColor chosen;
    QColor chosenText;
    QColor link;
};

constexpr Colours kDark{.ground = Panel::kPairTab,
                        .text = Panel::kTabBehindText,
                        .field = Panel::kPage,
                        .button = Panel::kDarkGround,
                        .disabled = Panel::kDisabledTabText,
                        .chosen = {30, 98, 196},
                        .chosenText = {255, 255, 255},
                        .link = {128, 184, 255}};
constexpr Colours kLight{.ground = Panel::kCommonTab,
                         .text = Panel::kOption,
                         .field = {255, 255, 255},
                         .button = {222, 226, 233},
                         .disabled = {122, 128, 140},
                         .chosen = {30, 98, 196},
                         .chosenText = {255, 255, 255},
                         .link = {0, 76, 170}};
constexpr Colours kBlack{.ground = {0, 0, 0},
                         .text = {255, 255, 255},
                         .field = {0, 0, 0},
                         .button = {0, 0, 0},
                         .disabled = {160, 160, 160},
                         .chosen = {255, 255, 0},
                         .chosenText = {0, 0, 0},
                         .link = {255, 255, 0}};
constexpr Colours kWhite{.ground = {255, 255, 255},
                         .text = {0, 0, 0},
                         .field = {255, 255, 255},
                         .button = {255, 255, 255},
                         .disabled = {96, 96, 96},
                         .chosen = {0, 0, 128},
                         .chosenText = {255, 255, 255},
                         .link = {0, 0, 160}};

const Colours& coloursOf(Frame frame, Contrast contrast) {
    if (contrast == Contrast::high) return frame == Frame::dark ? kBlack : kWhite;
    return frame == Frame::dark ? kDark : kLight;
}

}  // namespace

QString warningLook() {
    return QString("background: %1; color: %2; font-weight: bold; border-radius: 3px;")
        .arg(kWarningGround.name(), kWarningText.name());
}

QPalette framePalette(Frame frame, Contrast contrast) {
    const Colours& colours = coloursOf(frame, contrast);
    QPalette palette(colours.text, colours.button, colours.button.lighter(130),
                     colours.button.darker(150), colours.button.darker(120), colours.text,
                     colours.chosenText, colours.field, colours.ground);
    palette.setColor(QPalette::AlternateBase, colours.ground);
    palette.setColor(QPalette::Highlight, colours.chosen);
    palette.setColor(QPalette::HighlightedText, colours.chosenText);
    palette.setColor(QPalette::PlaceholderText, colours.disabled);
    palette.setColor(QPalette::Link, colours.link);
    palette.setColor(QPalette::LinkVisited, colours.link);
    palette.setColor(QPalette::ToolTipBase, Panel::kBubble);
    palette.setColor(QPalette::ToolTipText, Panel::kBubbleText);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, colours.disabled);
    }
    return palette;
}

// Themes for better sight have hardly anything but black and white; the toolkit's own grey does
// not come up to that.
Contrast contrastOf(const QPalette& desktop) {
    constexpr double kNearlyBlackOnWhite = 19.5;
    const double contrast =
        Window::contrastOf(desktop.color(QPalette::WindowText), desktop.color(QPalette::Window));
    return contrast >= kNearlyBlackOnWhite ? Contrast::high : Contrast::usual;
}

void paintFrame(Frame frame) {
    // Without the frame's own colours the desktop's are left.
    QApplication::setPalette({});
    const QPalette palette = framePalette(frame, contrastOf(QApplication::palette()));
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

}  // namespace Orvo::Manager
