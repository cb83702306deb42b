#include "Manager/Window/manager_window.h"

#include <algorithm>
#include <chrono>

#include <QCloseEvent>
#include <QDialog>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QWindow>

#include "Manager/Ports/open_link.h"
#include "Manager/Window/warning.h"
#include "Orvo/ports/machine_platform.h"
#include "Orvo/window/drawing/scale.h"
#include "Orvo/window/drawing/shown_text.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

constexpr auto kTick = 25ms;
constexpr auto kRefresh = 200ms;
// A machine that was asleep doesn't live through the night in the morning.
constexpr qint64 kLongestTick = 1000;

}  // namespace

ManagerWindow::ManagerWindow(const Options& options, QSettings* settings)
    : options_(options),
      settings_(settings),
      // Whoever plays the host here, a device or a session's file, may not make the window wait.
      // What is recorded must tick in the replay as it did here, and that can begin at any time.
      panel_(new Window::PanelWidget(Runtime::machinePlatform(Runtime::PrintServers::leftAlone),
                                     this, Window::Clock::byHand)),
      zoomArea_(new ZoomArea(*panel_, this)),
      statusLine_(new StatusLine),
      notices_(new NoticeBar([this](Widgets::WidgetId widget) { leadTo(widget); }, this)),
      fullScreenExit_(new QToolButton),
      owner_(*panel_),
      session_(owner_, owner_, options.session, *this, openLink),
      menus_(new Menus(*this)),
      events_(new EventDock(session_.station().log(), menus_->eventActions(), this)) {
    layOut();
    takeUp(choicesOfLastTime());
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
    addToolBar(Qt::BottomToolBarArea, notices_);
    addDockWidget(Qt::RightDockWidgetArea, events_);
    events_->hide();
    events_->setObjectName("Events");
    fullScreenExit_->setText(tr("Leave full screen"));
    fullScreenExit_->setObjectName("Leave full screen");
    fullScreenExit_->hide();
    statusBar()->addPermanentWidget(fullScreenExit_);
    connect(fullScreenExit_, &QToolButton::clicked, this, [this] { setFullScreen(false); });
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
    restoreGeometry(geometry_) ? keepOnScreen() : adaptSize();
    show();
    connect(windowHandle(), &QWindow::screenChanged, this, &ManagerWindow::keepOnScreen);
    if (options_.isFullScreen) setFullScreen(true);
    if (opensScopes_) showScopes(true);
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
    notices_->show(session_.station().notices());
    // A status bar doesn't hand on by itself what a line in it needs.
    statusBar()->setMinimumWidth(statusLine_->minimumSizeHint().width());
    QString title =
        tr("%1 - Marvane Manager").arg(Window::asTitle(QString::fromStdString(text.connection)));
    const QString recording = recordingText();
    if (!recording.isEmpty()) title = tr("%1: %2").arg(recording, title);
    setWindowTitle(text.isStale ? tr("Old values: %1").arg(title) : title);
}

QString ManagerWindow::recordingText() const {
    if (session_.hasRecordingStopped()) return tr("Recording stopped");
    return session_.isRecording() ? tr("Recording") : "";
}

void ManagerWindow::leadTo(Widgets::WidgetId widget) {
    selectTab(Window::pageOf(widget) + 1);
    if (QWidget* control = panel_->control(widget)) control->setFocus(Qt::TabFocusReason);
}

void ManagerWindow::showModes() {
    QStringList modes;
    if (session_.isReadOnly()) modes += tr("Read-only");
    if (!recordingText().isEmpty()) modes += recordingText();
    if (const auto* replay = session_.replay()) modes += QString::fromStdString(replay->position());
    statusLine_->showMode(modes.join(", "));
}

// What the desktop adds around the window isn't known before it is shown.
QSize ManagerWindow::largestSize() const {
    const QSize likely(8, style()->pixelMetric(QStyle::PM_TitleBarHeight) + 8);
    return screen()->availableSize() - (frameGeometry().size() - size()).expandedTo(likely);
}

// At the first start: as large as the panel needs, where the screen has room for it.
void ManagerWindow::adaptSize() {
    if (!zoomArea_->chosenZoom()) zoomArea_->suit(largestSize());
    layout()->activate();
    resize(zoomArea_->bounded(sizeHint(), largestSize()));
}

void ManagerWindow::keepOnScreen() {
    if (isFullScreen() || isMaximized()) return;
    resize(size().boundedTo(largestSize()));
    const QRect room = screen()->availableGeometry();
    const QPoint last = room.bottomRight() - QPoint(frameSize().width(), frameSize().height());
    const auto within = [](int place, int first, int end) {
        return std::max(first, std::min(place, end + 1));
    };
    move(within(x(), room.left(), last.x()), within(y(), room.top(), last.y()));
}

void ManagerWindow::closeEvent(QCloseEvent* event) {
    if (settings_ != nullptr) keep(choices(), *settings_);
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
