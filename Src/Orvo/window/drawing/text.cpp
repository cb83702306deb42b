#include "Orvo/window/drawing/text.h"

#include <QFontMetricsF>
#include <QKeyEvent>

#include "Orvo/window/drawing/fonts.h"

namespace Orvo::Window {

namespace {

bool holdsOnly(Qt::KeyboardModifiers held, Qt::KeyboardModifier modifier) {
    return (held & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == modifier;
}

}  // namespace

String fromQt(const QString& text) {
    return {reinterpret_cast<const char16_t*>(text.utf16()), std::size_t(text.size())};
}

QFont toQt(const Layout::Font& font, double zoom) {
    constexpr double kPixelsPerPoint = 96.0 / 72.0;
    QFont result;
    result.setFamily(familyOf(font.face));
    result.setPixelSize(qMax(1, qRound(font.points * kPixelsPerPoint * zoom)));
    result.setBold(font.isBold);
    result.setItalic(font.isItalic);
    result.setUnderline(font.isUnderlined);
    result.setHintingPreference(QFont::PreferVerticalHinting);
    return result;
}

double widthOf(const QString& text, const QFont& font) {
    return QFontMetricsF(font).horizontalAdvance(text);
}

QFont fitted(QFont font, const QString& text, double width) {
    constexpr int kNarrowest = 50;
    constexpr int kWidest = 125;
    const double natural = widthOf(text, font);
    if (natural <= 0) return font;
    font.setStretch(qBound(kNarrowest, int(100 * width / natural), kWidest));
    return font;
}

QFont narrowed(const QFont& font, const QString& text, double width) {
    return widthOf(text, font) > width ? fitted(font, text, width) : font;
}

String typedBy(const QKeyEvent& event) {
    if (holdsOnly(event.modifiers(), Qt::ControlModifier)) {
        const bool isLetter = event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
        return isLetter ? String(1, char16_t(event.key() - Qt::Key_A + 1)) : String();
    }
    if (holdsOnly(event.modifiers(), Qt::AltModifier)) return {};
    if (event.key() == Qt::Key_Delete) return {};
    return fromQt(event.text());
}

}  // namespace Orvo::Window
