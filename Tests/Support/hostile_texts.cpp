#include "Support/hostile_texts.h"

#include <algorithm>
#include <array>
#include <functional>

#include <sys/inotify.h>
#include <unistd.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QStringList>

namespace Orvo::Tests {
namespace {

constexpr qsizetype kLongest = 1200;

bool isSeen(QChar character) {
    if (character == '\n') return true;
    const QChar::Direction direction = character.direction();
    return character.category() != QChar::Other_Control && direction != QChar::DirRLO &&
           direction != QChar::DirLRO && direction != QChar::DirRLI;
}

bool isBounded(const QString& text) {
    return text.size() <= kLongest && std::ranges::all_of(text, isSeen) && text.isValidUtf16();
}

bool isMarkup(const QLabel& label) {
    const Qt::TextFormat format = label.textFormat();
    return format == Qt::AutoText ? Qt::mightBeRichText(label.text()) : format != Qt::PlainText;
}

bool fitsScreen(const QWidget& window) {
    const QSize screen = window.screen()->size();
    return window.width() <= screen.width() && window.height() <= screen.height();
}

void checkSpoken(QAccessibleInterface* spoken, QStringList& faults) {
    if (spoken == nullptr) return;
    for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value}) {
        // What a person edits is asked for piece by piece.
        const bool isWhole = kind != QAccessible::Value || spoken->textInterface() == nullptr;
        if (isWhole && !isBounded(spoken->text(kind)))
            faults += "spoken text " + QString::number(kind);
    }
    for (int i = 0; i < spoken->childCount(); ++i) checkSpoken(spoken->child(i), faults);
}

void checkWidget(QWidget& widget, QStringList& faults) {
    const QString name = QString(widget.metaObject()->className()) + ' ' + widget.objectName();
    if (Qt::mightBeRichText(widget.toolTip())) faults += "markup in the tip of " + name;
    if (!isBounded(widget.toolTip())) faults += "tip of " + name;
    const auto* label = qobject_cast<QLabel*>(&widget);
    if (label != nullptr && isMarkup(*label)) faults += "markup in " + name;
    if (label != nullptr && !isBounded(label->text())) faults += "text of " + name;
    if (!widget.isWindow() || !widget.isVisible()) return;
    // How large a main window is, is up to the person.
    if (widget.windowType() != Qt::Window && !fitsScreen(widget)) faults += "size of " + name;
    checkSpoken(QAccessible::queryAccessibleInterface(&widget), faults);
}

}  // namespace

TrappedFile::TrappedFile() : watch_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    directory_.add({"picture.png = none"});
    ::inotify_add_watch(watch_, path_.c_str(), IN_OPEN);
}

TrappedFile::~TrappedFile() { ::close(watch_); }

bool TrappedFile::hasBeenOpened() const {
    std::array<char, 4096> events{};
    return ::read(watch_, events.data(), events.size()) > 0;
}

std::vector<HostileText> hostileTexts(const TrappedFile& file) {
    const QString picture = "<img src='" + file.path() + "'>";
    return {
        {"picture", picture},
        {"picture behind an entity", "a &lt; b " + picture},
        {"document", "<?xml version='1.0'?><html><body>" + picture},
        {"heading", "  <h1>" + QString(300, 'W') + "</h1>"},
        {"long", QString(260'000, 'W')},
        {"long words", QString("word &and word ").repeated(20'000)},
        {"wide", QString(5'000, QChar(0xFDFD))},
        {"of many lines", QString("line\n").repeated(5'000)},
        {"control characters", QString("a%1b\x1B[31mc\r\x7F\u0085\u2028").arg(QChar(0))},
        {"turned", QString("a") + QChar(0x202E) + "gnp.exe" + QChar(0x2067)},
        {"halves", QString(QChar(0xDC00)) + "a" + QChar(0xD800)},
        {"a half at the cut", QString(998, 'a') + QString("\U0001F600").repeated(9)},
        {"placeholders", "[*] & %1 &&x %n [*][*]"},
    };
}

std::string faultsOnScreen() {
    QStringList faults;
    for (QWidget* widget : QApplication::allWidgets()) checkWidget(*widget, faults);
    return faults.join(", ").toStdString();
}

}  // namespace Orvo::Tests
