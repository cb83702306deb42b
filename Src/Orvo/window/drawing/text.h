#pragma once

#include <QColor>
#include <QFont>
#include <QString>

#include "Orvo/layout/style.h"
#include "Orvo/values/types.h"

class QKeyEvent;

// Texts, colours and fonts between the store and Qt.
namespace Orvo::Window {

inline QString toQt(StringView text) {
    return QString::fromUtf16(text.data(), qsizetype(text.size()));
}
String fromQt(const QString& text);

inline QColor toQt(Colour colour) { return {colour.red, colour.green, colour.blue}; }

/// Sized in pixels, so that the screen's own dots per inch don't matter.
QFont toQt(const Layout::Font& font, double zoom);

/// The same font, narrowed until the text is at most `width` pixels wide.
QFont narrowed(QFont font, const QString& text, double width);

/// The same font, its letters set until the text is about `width` pixels wide.
QFont spaced(QFont font, const QString& text, double width);

double widthOf(const QString& text, const QFont& font);

/// The character codes that a key press types, Ctrl+A to Ctrl+Z being 1 to 26; empty for keys that
/// type nothing, such as the arrows.
String typedBy(const QKeyEvent& event);

}  // namespace Orvo::Window
