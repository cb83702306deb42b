#include "Manager/Window/event_dock.h"

#include <algorithm>

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "Orvo/window/drawing/shown_text.h"

namespace Orvo::Manager {
namespace {

constexpr int kNarrowest = 24;  // characters

// More would be noticed where lines are long; the rest comes with the next time.
constexpr std::uint64_t kMostAtOnce = 400;

QString shownLines(const std::deque<std::string>& lines, std::uint64_t from, std::uint64_t count) {
    QStringList texts;
    for (std::uint64_t i = 0; i < count; ++i)
        texts += Window::shown(QString::fromStdString(lines[from + i]));
    return texts.join('\n');
}

QWidget* rowOf(const QList<QAction*>& actions) {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QAction* action : actions) {
        auto* button = new QToolButton;
        button->setDefaultAction(action);
        layout->addWidget(button);
    }
    layout->addStretch();
    return row;
}

QPlainTextEdit* makeLines() {
    auto* lines = new QPlainTextEdit;
    lines->setAccessibleName(EventDock::tr("Events"));
    lines->setReadOnly(true);
    lines->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    lines->setLineWrapMode(QPlainTextEdit::NoWrap);
    lines->setUndoRedoEnabled(false);
    lines->setTabChangesFocus(true);
    lines->setMaximumBlockCount(int(EventLog::kMostLines));
    lines->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    lines->setMinimumWidth(lines->fontMetrics().horizontalAdvance(QString(kNarrowest, '0')));
    return lines;
}

}  // namespace

EventDock::EventDock(const EventLog& log, const QList<QAction*>& actions, QWidget* parent)
    : QDockWidget(tr("Events"), parent), log_(log), actions_(actions) {
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
}

// Seldom looked at, and a tenth of what a program's start takes.
void EventDock::setVisible(bool visible) {
    if (visible && lines_ == nullptr) fill();
    QDockWidget::setVisible(visible);
}

void EventDock::fill() {
    lines_ = makeLines();
    auto* contents = new QWidget;
    auto* layout = new QVBoxLayout(contents);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(rowOf(actions_));
    layout->addWidget(lines_);
    setWidget(contents);
    refresh();
}

void EventDock::refresh() {
    if (lines_ == nullptr) return;
    if (clears_ != log_.clears()) {
        lines_->clear();
        clears_ = log_.clears();
    }
    if (shown_ != log_.added()) append();
}

void EventDock::showEvent(QShowEvent* event) {
    QDockWidget::showEvent(event);
    showNewest();
}

bool EventDock::showsNewest() const {
    return lines_->verticalScrollBar()->value() == lines_->verticalScrollBar()->maximum();
}

void EventDock::showNewest() {
    lines_->verticalScrollBar()->setValue(lines_->verticalScrollBar()->maximum());
    lines_->horizontalScrollBar()->setValue(0);
}

void EventDock::append() {
    const auto& lines = log_.lines();
    const auto missing = std::min<std::uint64_t>(log_.added() - shown_, lines.size());
    const auto count = std::min<std::uint64_t>(missing, kMostAtOnce);
    const bool wasNewestShown = showsNewest();
    if (count > 0) lines_->appendPlainText(shownLines(lines, lines.size() - missing, count));
    if (wasNewestShown) showNewest();
    shown_ = log_.added() - missing + count;
}

QString EventDock::text() const {
    QStringList texts;
    for (const std::string& line : log_.lines()) texts += QString::fromStdString(line);
    return texts.join('\n');
}

}  // namespace Orvo::Manager
