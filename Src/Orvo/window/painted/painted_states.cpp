#include "Orvo/window/painted/painted_states.h"

#include <QPainter>

#include "Orvo/window/drawing/text.h"

namespace Orvo::Window {

void PaintedStates::layOut(const Scale& scale) {
    Painted::layOut(scale);
    // A pixel more for what antialiasing puts outside.
    cell_ = ink().adjusted(-1, -1, 1, 1);
    pictures_.clear();
}

void PaintedStates::paint(QPainter& painter) const {
    pictures_.resize(std::size_t(states()));
    const int now = state();
    const auto drawNow = [this, now](QPainter& onto) {
        onto.setRenderHint(QPainter::Antialiasing);
        draw(onto, now);
    };
    pictures_[std::size_t(now)].paint(painter, cell_, {[this, now] { return key(now); }, drawNow});
}

QString PaintedStates::key(int state) const {
    QString key = QString("%1 %2 %3 %4")
                      .arg(int(looks().kind))
                      .arg(int(looks().outline))
                      .arg(state)
                      .arg(scale().zoom());
    for (const Colour colour : {looks().text, looks().back, looks().fill, looks().border})
        key += toQt(colour).name();
    return key;
}

}  // namespace Orvo::Window
