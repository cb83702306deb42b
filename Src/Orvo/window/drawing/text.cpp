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
    const Family family = familyOf(font.face);
    result.setFamily(family.name);
    if (family.stretch != 0) result.setStretch(family.stretch);
    result.setPixelSize(qMax(1, qRound(font.points * kPixelsPerPoint * zoom)));
    result.setBold(font.isBold);
    result.setItalic(font.isItalic);
    result.setUnderline(font.isUnderlined);
    result.setHintingPreference(QFont::PreferVerticalHinting);
    // A host's own font gives it nothing, neither spacing nor a strike through.
    result.setResolveMask(QFont::AllPropertiesResolved);
    return result;
}

double widthOf(const QString& text, const QFont& font) {
    return QFontMetricsF(font).horizontalAdvance(text);
}

QFont narrowed(QFont font, const QString& text, double width) {
    constexpr int kNarrowest = 50;
    const double natural = widthOf(text, font);
    if (natural <= width) return font;
    const int stretch = font.stretch() == QFont::AnyStretch ? QFont::Unstretched : font.stretch();
    font.setStretch(qMax(kNarrowest, int(stretch * width / natural)));
    return font;
}

QFont spaced(QFont font, const QString& text, double width) {
    const double room = width - widthOf(text, font);
    font.setLetterSpacing(QFont::AbsoluteSpacing, room / qMax(1, int(text.size())));
    return font;
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
