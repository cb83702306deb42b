#pragma once

#include <QFont>
#include <QString>
#include <QStringView>
#include <QToolTip>
#include <QWidget>

// Texts from outside, such as log lines and names of files, as they are shown: plain, whole
// characters of them, and no more than fits the screen.
namespace Orvo::Window {

/// In UTF-16 units, with the "…" that the rest is left out for.
constexpr qsizetype kLongestShown = 1000;

/// On one line. What can't be seen, or changes how its neighbours look, is replaced by a sign:
/// control characters, line breaks, what turns the direction of writing, halves of characters.
QString shown(QStringView text);

/// The same on a few lines, for tooltips and messages. It is never taken for markup.
QString onLines(QStringView text, const QFont& font = QToolTip::font());

/// Has the labels of a dialog take their texts for no markup either.
void makePlain(const QWidget& dialog);

/// The same as the title of a window.
QString asTitle(QStringView text);

}  // namespace Orvo::Window
