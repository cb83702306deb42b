#include "Manager/Scope/scope_window.h"

#include <chrono>
#include <utility>

#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

#include "Manager/Scope/readings.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

constexpr auto kTick = 33ms;
constexpr auto kFiguresTick = 250ms;  // digits that change faster can't be read
constexpr QSize kSize(960, 640);

QString clock(const QDateTime& time) { return time.toString("HH:mm:ss"); }

}  // namespace

ScopeWindow::ScopeWindow(const Station& station, QWidget* parent)
    : QMainWindow(parent, Qt::Window),
      station_(station),
      bars_(new ScopeBars(*this)),
      plot_(new Plot),
      cursorText_(new QLabel),
      figures_(new FiguresTable) {
    auto* contents = new QWidget;
    auto* layout = new QVBoxLayout(contents);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(plot_, 1);
    layout->addWidget(cursorText_);
    layout->addWidget(figures_);
    cursorText_->setMargin(5);
    cursorText_->setTextFormat(Qt::PlainText);
    cursorText_->setWordWrap(true);
    cursorText_->setAccessibleName(tr("Cursors"));
    setCentralWidget(contents);
    resize(kSize.boundedTo(screen()->availableSize() * 9 / 10));
    plot_->setFocus();
    connect(new QShortcut(QKeySequence("Ctrl+W"), this), &QShortcut::activated, this,
            &QWidget::close);
    connect(bars_, &ScopeBars::changed, this, &ScopeWindow::redraw);
    connect(bars_, &ScopeBars::savePicture, this, [this] { emit pictureWanted(picture()); });
    connect(bars_, &ScopeBars::saveSamples, this,
            [this] { emit samplesWanted(plot_->view().traces); });
    connect(plot_, &Plot::cursorsMoved, this,
            [this] { cursorText_->setText(cursorText(plot_->view())); });
    connect(&tick_, &QTimer::timeout, this, &ScopeWindow::refresh);
    connect(&figuresTick_, &QTimer::timeout, this, &ScopeWindow::showFigures);
}

void ScopeWindow::showEvent(QShowEvent* event) {
    refresh();
    showFigures();
    tick_.start(kTick);
    figuresTick_.start(kFiguresTick);
    QMainWindow::showEvent(event);
}

void ScopeWindow::hideEvent(QHideEvent* event) {
    tick_.stop();
    figuresTick_.stop();
    QMainWindow::hideEvent(event);
}

QImage ScopeWindow::picture() {
    refresh();
    showFigures();
    return centralWidget()->grab().toImage();
}

void ScopeWindow::refresh() {
    const bool isNew = revision_ != station_.traces().revision() && !bars_->isHeld();
    if (isNew) takeTraces();
    const QString note = oldness();
    if (std::exchange(note_, note) != note || isNew) redraw();
}

void ScopeWindow::takeTraces() {
    revision_ = station_.traces().revision();
    taken_.clear();
    for (Integer channel = 1; channel <= kChannels; ++channel) {
        taken_.push_back(station_.traces().trace(channel));
    }
}

// Since when what is shown is no longer what is: empty while it is live.
QString ScopeWindow::oldness() {
    const auto now = QDateTime::currentDateTime();
    if (!bars_->isHeld()) heldSince_ = {};
    if (bars_->isHeld() && !heldSince_.isValid()) heldSince_ = now;
    const Situation situation = station_.situation();
    const bool isOld = situation.silence && !statusText(situation).veil.empty();
    if (!isOld) oldSince_ = {};
    if (isOld && !oldSince_.isValid()) oldSince_ = now.addMSecs(-situation.silence->count());
    if (heldSince_.isValid()) return tr("Held since %1").arg(clock(heldSince_));
    return isOld ? tr("Old values, held since %1").arg(clock(oldSince_)) : "";
}

void ScopeWindow::redraw() {
    PlotView view = plot_->view();
    bars_->applyTo(view);
    note_ = oldness();
    view.note = note_;
    view.isOld = oldSince_.isValid();
    const QString title = tr("Scopes - Marvane Manager");
    setWindowTitle(view.isOld ? tr("Old values: %1").arg(title) : title);
    view.traces.clear();
    for (ScopeTrace& trace : std::vector(taken_)) {
        if (!bars_->isOn(trace.channel)) continue;
        if (const auto chosen = bars_->chosenInterval(trace.drawn().size()))
            trace.interval = chosen;
        view.traces.push_back(std::move(trace));
    }
    // A channel that is off has no time to read.
    if (view.sourceTrace() == nullptr && !view.traces.empty())
        view.source = view.traces.front().channel;
    plot_->show(view);
    cursorText_->setText(cursorText(view));
    areFiguresOld_ = true;
}

void ScopeWindow::showFigures() {
    if (!std::exchange(areFiguresOld_, false)) return;
    figures_->show(plot_->view());
    QStringList sentences;
    for (const ScopeTrace& trace : plot_->view().traces) sentences += sentenceOf(trace);
    plot_->setAccessibleDescription(sentences.join(". "));
}

}  // namespace Orvo::Manager
