#include "Orvo/window/controls/buttons.h"

#include <algorithm>

#include <QKeyEvent>
#include <QPainter>

#include "Artwork/Drawings/drawings.h"
#include "Orvo/window/drawing/chrome.h"
#include "Orvo/window/drawing/palette.h"

namespace Orvo::Window {

// The caption isn't Qt's text, which would replace the shortcut by its own.
void CommandButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor back = toQt(looks().back);
    if (!isEnabled()) back = QColor::fromHsv(back.hue(), back.saturation() / 4, 140);
    if (isEnabled() && underMouse() && !isDown()) back = back.lighter(108);
    drawFace(painter, rect(), back, isDown() ? Face::sunken : Face::raised, zoom());

    const int sunk = isDown() ? qRound(zoom()) : 0;
    painter.setPen(isEnabled() ? toQt(looks().text) : Palette::kDisabledCaption);
    painter.drawText(rect().translated(sunk, sunk), Qt::AlignCenter | Qt::TextWordWrap,
                     toQt(description().caption));
    drawFocus(painter, *this, zoom());
}

void OptionButton::refresh() {
    PressButton::refresh();
    setChecked(stored<Runtime::StoredOption>().value);
    setFocusPolicy(isTabStop() ? Qt::StrongFocus : Qt::ClickFocus);
}

bool OptionButton::isTabStop() const {
    const auto& options = Layout::kAll<Layout::Kind::option>;
    return isChecked() || std::none_of(options.begin(), options.end(), [this](WidgetId other) {
               return Layout::areFellows(other, id()) &&
                      store().get<Runtime::StoredOption>(other).state().value;
           });
}

void OptionButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre = QRectF(rect()).center();
    const double radius = 5.2 * zoom();
    const QColor ring = isEnabled() ? Palette::kOptionRing : Palette::kDisabledOptionRing;
    painter.setPen(QPen(ring, 1.2 * zoom()));
    painter.setBrush(isDown() || (isEnabled() && underMouse()) ? Palette::kPointedOption
                                                               : Palette::kOption);
    painter.drawEllipse(centre, radius, radius);
    if (isChecked()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isEnabled() ? toQt(looks().text) : ring);
        painter.drawEllipse(centre, radius / 2, radius / 2);
    }
    drawRoundFocus(painter, *this, zoom());
}

void OptionButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Up:
        case Qt::Key_Left:
            return selectNext(-1);
        case Qt::Key_Down:
        case Qt::Key_Right:
            return selectNext(+1);
        default:
            return PressButton::keyPressEvent(event);
    }
}

// The focus goes first: selecting may be the end of all this.
void OptionButton::selectNext(int step) {
    constexpr int kCount = int(Layout::kWidgetCount);
    for (int i = 1; i < kCount; ++i) {
        const auto next = WidgetId((id() + kCount + step * i) % kCount);
        if (!Layout::areFellows(next, id()) || !store().acceptsInput(next)) continue;
        for (QObject* child : parentWidget()->children()) {
            auto* fellow = dynamic_cast<OptionButton*>(child);
            if (fellow != nullptr && fellow->id() == next) fellow->setFocus(Qt::TabFocusReason);
        }
        perform(Deed::activate(next));
        return;
    }
}

void PowerButton::layOut(const Scale& scale) {
    PressButton::layOut(scale);
    pictures_ = {};
}

void PowerButton::refresh() {
    PressButton::refresh();
    setChecked(stored<Runtime::StoredCheck>().value == Widgets::CheckValue::checked);
}

void PowerButton::drawVeil(QPainter& painter, QColor colour) const {
    const double radius = 3 * zoom();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(rect(), radius, radius);
}

// Pressed in and let out again by turns; what the picture shows is also where it will go.
void PowerButton::paintEvent(QPaintEvent*) {
    const bool isSunken = isChecked() != isDown();
    QPainter painter(this);
    const auto draw = [&](QPainter& onto) {
        Artwork::paint(onto, isSunken ? Artwork::kPowerDown : Artwork::kPowerUp, rect());
    };
    const auto key = [&] { return QString(isSunken ? "down" : "up"); };
    pictures_[isSunken ? 1 : 0].paint(painter, rect(), {key, draw});
    if (!isEnabled()) drawVeil(painter, Palette::kDisabledVeil);
    if (isEnabled() && underMouse()) drawVeil(painter, Palette::kPointedVeil);
    drawFocus(painter, *this, zoom());
}

}  // namespace Orvo::Window
