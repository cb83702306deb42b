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

void PaintedStates::paintState(QPainter& painter, int state) const {
    pictures_.resize(std::size_t(states()));
    const auto drawIt = [this, state](QPainter& onto) {
        onto.setRenderHint(QPainter::Antialiasing);
        draw(onto, state);
    };
    pictures_[std::size_t(state)].paint(painter, cell_,
                                        {[this, state] { return key(state); }, drawIt});
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
