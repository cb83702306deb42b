#include "Manager/manager_window.h"

#include <algorithm>
#include <chrono>

#include <QCloseEvent>
#include <QDialog>
#include <QFile>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>

#include "Manager/zoom.h"
#include "Orvo/core/marvane_assistant.h"
#include "Runtime/Ports/machine_platform.h"
#include "Runtime/Store/store.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

constexpr auto kTick = 25ms;
constexpr auto kRefresh = 200ms;
// A machine that was asleep doesn't live through the night in the morning.
constexpr qint64 kLongestTick = 1000;

// What is recorded must tick in the replay as it did here.
Window::Clock clockOf(const Options& options) {
    return options.record.isEmpty() ? Window::Clock::real : Window::Clock::byHand;
}

std::unique_ptr<Recorder> recorderOf(const Options& options, Window::PanelWidget& panel) {
    if (options.record.isEmpty()) return nullptr;
    const auto answers = options.recordsAnswers ? Answers::inFull : Answers::asCancelled;
    return std::make_unique<Recorder>(QFile::encodeName(options.record).toStdString(),
                                      panel.panel(), panel.store(), answers);
}

}  // namespace

ManagerWindow::ManagerWindow(const Options& options)
    : options_(options),
      panel_(new Window::PanelWidget(Runtime::machinePlatform(), this, clockOf(options))),
      recorder_(recorderOf(options, *panel_)),
      station_(panel_->panel()),
      zoomArea_(new ZoomArea(*panel_, this)),
      statusLine_(new StatusLine),
      saver_(new FileSaver(*this)),
      menus_(new Menus(*this)),
      events_(new EventDock(station_.log(), menus_->eventActions(), this)) {
    station_.listenWith(recorder_.get());
    layOut();
    connect(saver_, &FileSaver::said, statusLine_, &StatusLine::say);
    listenToErrors();
    station_.renewWith([this] { renewPanel(); });
    setReadOnly(options.isReadOnly);
    selectTab(options.tab);
    zoomArea_->setZoom(options.zoom);
    startClock();
    refresh();
}

ManagerWindow::~ManagerWindow() { panel_->panel().setErrorHandler({}); }

void ManagerWindow::listenToErrors() {
    panel_->panel().setErrorHandler([this](const Error& error) {
        station_.conversation().failed(error);
        statusLine_->say("Error " + QString::number(error.number()) + ": " + error.what());
    });
}

void ManagerWindow::renewPanel() {
    if (recorder_ != nullptr) recorder_->panelEnds();
    panel_->renew();
    if (recorder_ != nullptr) recorder_->panelBegins(panel_->panel(), panel_->store());
    listenToErrors();
    if (options_.isReadOnly) setReadOnly(true);
}

void ManagerWindow::layOut() {
    setCentralWidget(zoomArea_);
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addPermanentWidget(statusLine_, 1);
    statusBar()->setMinimumWidth(statusLine_->minimumWidth());
    addDockWidget(Qt::RightDockWidgetArea, events_);
    events_->hide();
    connect(events_, &QDockWidget::topLevelChanged, this, &ManagerWindow::adaptSize);
}

void ManagerWindow::startClock() {
    connect(&tick_, &QTimer::timeout, this, &ManagerWindow::advance);
    connect(&refreshes_, &QTimer::timeout, this, &ManagerWindow::refresh);
    tick_.setTimerType(Qt::PreciseTimer);
    sinceTick_.start();
    tick_.start(kTick);
    refreshes_.start(kRefresh);
}

void ManagerWindow::advance() {
    const qint64 elapsed = std::min(sinceTick_.restart(), kLongestTick);
    letPass(std::chrono::milliseconds(elapsed));
}

void ManagerWindow::letPass(std::chrono::milliseconds time) {
    if (recorder_ != nullptr) panel_->store().advance(time);
    station_.advance(time);
}

void ManagerWindow::open() {
    adaptSize();
    show();
    if (options_.isFullScreen) setFullScreen(true);
}

void ManagerWindow::refresh() {
    menus_->refresh();
    events_->refresh();
    statusLine_->showReadOnly(isReadOnly());
    statusLine_->showZoom(zoomArea_->zoom());
    showSituation();
}

void ManagerWindow::showSituation() {
    const StatusText text = statusText(station_.situation());
    statusLine_->showText(text);
    const QString title = QString::fromStdString(text.connection) + " - Marvane Manager";
    setWindowTitle(text.isStale ? "Old values: " + title : title);
}

// As large as the panel needs, where the screen has room for it.
void ManagerWindow::adaptSize() {
    if (isFullScreen() || isMaximized()) return;
    layout()->activate();
    const QSize frame = frameGeometry().size() - size();
    resize(sizeHint().boundedTo(screen()->availableSize() - frame));
}

void ManagerWindow::closeEvent(QCloseEvent* event) {
    tick_.stop();
    refreshes_.stop();
    for (QDialog* dialog : findChildren<QDialog*>()) dialog->reject();
    QMainWindow::closeEvent(event);
}

}  // namespace Orvo::Manager
