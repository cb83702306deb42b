#include "Manager/Window/manager_window.h"

#include <algorithm>
#include <chrono>

#include <QCloseEvent>
#include <QDialog>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>

#include "Manager/Station/replay_device.h"
#include "Manager/Window/zoom.h"
#include "Orvo/core/marvane_assistant.h"
#include "Orvo/ports/machine_platform.h"
#include "Orvo/store/store.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

constexpr auto kTick = 25ms;
constexpr auto kRefresh = 200ms;
// A machine that was asleep doesn't live through the night in the morning.
constexpr qint64 kLongestTick = 1000;

}  // namespace

ManagerWindow::ManagerWindow(const Options& options)
    : options_(options),
      // What is recorded must tick in the replay as it did here, and that can begin at any time.
      panel_(new Window::PanelWidget(Runtime::machinePlatform(), this, Window::Clock::byHand)),
      recorder_(options.record.isEmpty() ? nullptr : makeRecorder(options.record)),
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
    owner_.renew();
    listenToErrors();
    if (options_.isReadOnly && !isReplaying()) setReadOnly(true);
}

void ManagerWindow::layOut() {
    setCentralWidget(zoomArea_);
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addPermanentWidget(statusLine_, 1);
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
    if (!isReplaying()) panel_->store().advance(time);
    station_.advance(time);
    endHourglass(time);
    endReplayThatIsOver();
}

// The panel leaves it to its host to take the hourglass away again: when the amplifier has spoken
// since, or will not. A replay does so itself.
void ManagerWindow::endHourglass(std::chrono::milliseconds time) {
    Runtime::Store& store = panel_->store();
    hourglass_ = store.pointer() == Widgets::Pointer::standard ? 0ms : hourglass_ + time;
    if (hourglass_ == 0ms) return;
    const auto silence = station_.situation().silence.value_or(hourglass_);
    const bool isAwaited = station_.isConnected() && silence >= hourglass_ && silence < kStaleAfter;
    if (isAwaited || isReplaying()) return;
    store.mousePointer().setPointer(Widgets::Pointer::standard);
    if (isRecording()) recorder_->pointerIsSet();
}

void ManagerWindow::open() {
    adaptSize();
    show();
    if (options_.isFullScreen) setFullScreen(true);
}

void ManagerWindow::refresh() {
    menus_->refresh();
    events_->refresh();
    showModes();
    statusLine_->showZoom(zoomArea_->zoom());
    showSituation();
}

void ManagerWindow::showSituation() {
    const StatusText text = statusText(station_.situation());
    statusLine_->showText(text);
    // A status bar doesn't hand on by itself what a line in it needs.
    statusBar()->setMinimumWidth(statusLine_->minimumSizeHint().width());
    const QString title = QString::fromStdString(text.connection) + " - Marvane Manager";
    const QString recording = isRecording() ? "Recording: " : "";
    setWindowTitle((text.isStale ? "Old values: " : "") + recording + title);
}

void ManagerWindow::showModes() {
    QStringList modes;
    if (isReadOnly()) modes += "Read-only";
    if (isRecording()) modes += "Recording";
    statusLine_->showMode(modes.join(", "));
}

// As large as the panel needs, where the screen has room for it.
void ManagerWindow::adaptSize() {
    if (isFullScreen() || isMaximized()) return;
    layout()->activate();
    const QSize frame = frameGeometry().size() - size();
    resize(zoomArea_->bounded(sizeHint(), screen()->availableSize() - frame));
}

void ManagerWindow::closeEvent(QCloseEvent* event) {
    stopReplay();
    tick_.stop();
    refreshes_.stop();
    for (QDialog* dialog : findChildren<QDialog*>()) dialog->reject();
    QMainWindow::closeEvent(event);
}

}  // namespace Orvo::Manager
