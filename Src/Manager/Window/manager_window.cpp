#include "Manager/Window/manager_window.h"

#include <algorithm>
#include <chrono>

#include <QCloseEvent>
#include <QDialog>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>

#include "Manager/Window/warning.h"
#include "Orvo/ports/machine_platform.h"
#include "Orvo/window/drawing/shown_text.h"

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
      // Whoever plays the host here, a device or a session's file, may not make the window wait.
      // What is recorded must tick in the replay as it did here, and that can begin at any time.
      panel_(new Window::PanelWidget(Runtime::machinePlatform(Runtime::PrintServers::leftAlone),
                                     this, Window::Clock::byHand)),
      zoomArea_(new ZoomArea(*panel_, this)),
      statusLine_(new StatusLine),
      owner_(*panel_),
      session_(owner_, owner_, options.session, *this),
      menus_(new Menus(*this)),
      events_(new EventDock(session_.station().log(), menus_->eventActions(), this)) {
    layOut();
    selectTab(options.tab);
    zoomArea_->setZoom(options.zoom);
    startClock();
    refresh();
}

void ManagerWindow::say(const std::string& message) {
    statusLine_->say(QString::fromStdString(message));
}

void ManagerWindow::warn(const Failure& failure) { showFailure(failure); }

QDialog& ManagerWindow::showFailure(const Failure& failure) {
    return showWarning(*this, QString::fromStdString(failure.title),
                       QString::fromStdString(failure.text),
                       QString::fromStdString(failure.details));
}

void ManagerWindow::recordingStopped(const Failure& failure) {
    refresh();
    connect(&showFailure(failure), &QDialog::finished, this, &ManagerWindow::askToGoOnRecording);
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
    session_.letPass(std::chrono::milliseconds(elapsed));
}

void ManagerWindow::open() {
    refresh();
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
    const StatusText text = statusText(session_.station().situation());
    statusLine_->showText(text);
    zoomArea_->veil(QString::fromStdString(text.veil));
    // A status bar doesn't hand on by itself what a line in it needs.
    statusBar()->setMinimumWidth(statusLine_->minimumSizeHint().width());
    const QString title =
        Window::asTitle(QString::fromStdString(text.connection)) + " - Marvane Manager";
    const QString recording = recordingText();
    setWindowTitle((text.isStale ? "Old values: " : "") + recording +
                   (recording.isEmpty() ? "" : ": ") + title);
}

QString ManagerWindow::recordingText() const {
    if (session_.hasRecordingStopped()) return "Recording stopped";
    return session_.isRecording() ? "Recording" : "";
}

void ManagerWindow::showModes() {
    QStringList modes;
    if (session_.isReadOnly()) modes += "Read-only";
    if (!recordingText().isEmpty()) modes += recordingText();
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
    session_.stopReplay();
    tick_.stop();
    refreshes_.stop();
    for (QDialog* dialog : findChildren<QDialog*>()) {
        // One that asks the next question when it is over asks no more.
        disconnect(dialog, &QDialog::finished, this, nullptr);
        dialog->reject();
    }
    QMainWindow::closeEvent(event);
}

}  // namespace Orvo::Manager
