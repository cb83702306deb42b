#include "Orvo/window/drawing/shown_text.h"

#include <QFontMetrics>
#include <QLabel>
#include <QTextLayout>

namespace Orvo::Window {

namespace {

constexpr QChar kEllipsis(u'…');
constexpr int kWidestLine = 560;  // pixels, in the font of tooltips
constexpr int kSurelyFits = 28;   // characters; measured, each tip would have its font loaded
constexpr int kMostLines = 15;

int widestLineIn(const QFont& font) {
    return kWidestLine * QFontMetrics(font).height() / QFontMetrics(QToolTip::font()).height();
}

QString cut(QStringView text) {
    if (text.size() <= kLongestShown) return text.toString();
    QStringView kept = text.first(kLongestShown - 1);
    if (kept.back().isHighSurrogate()) kept.chop(1);
    return kept.toString() + kEllipsis;
}

bool isLoneSurrogate(const QString& text, qsizetype at) {
    const QChar before = at > 0 ? text[at - 1] : QChar();
    const QChar after = at + 1 < text.size() ? text[at + 1] : QChar();
    return text[at].isHighSurrogate() ? !after.isLowSurrogate()
                                      : text[at].isLowSurrogate() && !before.isHighSurrogate();
}

bool turnsDirection(QChar character) {
    switch (character.direction()) {
        case QChar::DirLRE:
        case QChar::DirLRO:
        case QChar::DirRLE:
        case QChar::DirRLO:
        case QChar::DirPDF:
        case QChar::DirLRI:
        case QChar::DirRLI:
        case QChar::DirFSI:
        case QChar::DirPDI:
            return true;
        default:
            return false;
    }
}

bool breaksLine(QChar character) {
    return character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
}

// The signs for the control characters stand in their order.
QChar signFor(const QString& text, qsizetype at) {
    constexpr char16_t kSigns = u'\u2400';
    constexpr char16_t kDelete = u'\x7F';
    const QChar unit = text[at];
    if (unit == '\t') return ' ';
    if (unit < ' ') return QChar(kSigns + unit.unicode());
    if (unit < kDelete) return unit;
    const bool isUnseen = unit.category() == QChar::Other_Control || breaksLine(unit) ||
                          turnsDirection(unit) || isLoneSurrogate(text, at);
    return isUnseen ? QChar(QChar::ReplacementCharacter) : unit;
}

// Nothing is drawn for what stands behind these, but no tag or entity is left.
QString unmarked(QString text) {
    const QString joiner(QChar(0x2060));
    return text.replace('<', '<' + joiner).replace('&', '&' + joiner);
}

}  // namespace

QString shown(QStringView text) {
    QString result = cut(text);
    for (qsizetype at = 0; at < result.size(); ++at) {
        const QChar sign = signFor(result, at);
        if (sign != result[at]) result[at] = sign;
    }
    return result;
}

QString onLines(QStringView text, const QFont& font) {
    const QString line = shown(text);
    if (line.size() <= kSurelyFits) return unmarked(line);
    const int widest = widestLineIn(font);
    if (QFontMetrics(font).horizontalAdvance(line) <= widest) return unmarked(line);
    QTextLayout layout(line, font);
    QTextOption anywhere;
    anywhere.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(anywhere);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine next = layout.createLine(); next.isValid(); next = layout.createLine()) {
        if (lines.size() == kMostLines) {
            lines.back() += kEllipsis;
            break;
        }
        next.setLineWidth(widest);
        lines += line.mid(next.textStart(), next.textLength()).trimmed();
    }
    layout.endLayout();
    return unmarked(lines.join('\n'));
}

void makePlain(const QWidget& dialog) {
    for (QLabel* label : dialog.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
}

// There "[*]" stands for a sign that something has changed, and itself when it is doubled.
QString asTitle(QStringView text) { return shown(text).replace("[*]", "[*][*]"); }

}  // namespace Orvo::Window
