#pragma once

#include <chrono>
#include <memory>

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>

#include "Manager/Station/station.h"
#include "Manager/Window/event_dock.h"
#include "Manager/Window/file_saver.h"
#include "Manager/Window/menus.h"
#include "Manager/Window/options.h"
#include "Manager/Window/status_line.h"
#include "Manager/Window/window_panel.h"
#include "Manager/Window/zoom_area.h"
#include "Orvo/window/panel_widget.h"
#include "Script/recorder.h"

namespace Orvo::Manager {

class ReplayDevice;

/// The program's window: the panel, what is connected to it, and what a person can do beside the
/// panel.
class ManagerWindow final : public QMainWindow {
    Q_OBJECT

public:
    /// Throws std::system_error when the session is to be recorded in a file that can't be opened.
    explicit ManagerWindow(const Options& options = {});
    ~ManagerWindow() override;

    /// Shows the window, as the options say.
    void open();
    /// Lets time pass for what is connected; that happens by itself.
    void letPass(std::chrono::milliseconds time);

    [[nodiscard]] Window::PanelWidget& panelWidget() { return *panel_; }
    [[nodiscard]] Station& station() { return station_; }

    /// Brings menus, status line and event view up to date; that happens by itself several times
    /// a second.
    void refresh();

    // What the menus command. One thing at a time plays the host of the panel: what is connected
    // ends a replay, and a replay ends a recording.

    /// With the seed of the options, from the beginning.
    void connectSimulator(Simulator::PowerAtStart power = Simulator::PowerAtStart::on);
    void connectLink(const LinkAddress& address);
    /// Asks for the address; the last one is there to be taken again.
    void askForLink();
    /// Also what a person types. Empty when the link is connected, else what is wrong with it.
    QString connectLink(const QString& address);
    void connectNothing();

    void askForRecording();
    /// From a fresh panel on, to which what is connected is connected anew; the tab in front stays.
    void startRecording(const QString& file);
    void stopRecording();
    [[nodiscard]] bool isRecording() const { return recorder_ != nullptr; }

    void askForReplay();
    /// On a fresh panel, with nothing else connected.
    void startReplay(const QString& file);
    void stopReplay();
    [[nodiscard]] bool isReplaying() const { return replay() != nullptr; }

    void runQuickTest();
    void setFault(Simulator::Fault fault, bool isOn);
    void setReadOnly(bool isReadOnly);
    [[nodiscard]] bool isReadOnly() const;

    void savePicture();
    void saveScopePicture(Integer channel);
    void saveTrace(Integer channel);
    void copyMessageLog();
    void saveMessageLog();

    /// Tabs are counted from 1. One that is disabled doesn't come to the front.
    void selectTab(int tab);
    [[nodiscard]] int tab() const;
    void setZoom(int percent);
    void zoomIn();
    void zoomOut();
    void setFullScreen(bool isFullScreen);

    void showEvents(bool isShown);
    [[nodiscard]] bool areEventsShown() const { return !events_->isHidden(); }
    void setEventDetail(Detail detail) { station_.conversation().setDetail(detail); }
    void copyEvents();
    void clearEvents() { station_.log().clear(); }

    void showShortcuts();
    void showAbout();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    [[nodiscard]] std::unique_ptr<Script::Recorder> makeRecorder(const QString& file);
    void layOut();
    void listenToErrors();
    void renewPanel();
    [[nodiscard]] ReplayDevice* replay() const;
    void endReplayThatIsOver();
    void endHourglass(std::chrono::milliseconds time);
    void startClock();
    void advance();
    void adaptSize();
    void showSituation();
    void showModes();
    [[nodiscard]] QString messageLog() const;

    const Options options_;
    Window::PanelWidget* const panel_;
    WindowPanel owner_{*panel_};
    std::unique_ptr<Script::Recorder> recorder_;  // null when nothing is recorded
    Station station_;
    ZoomArea* const zoomArea_;
    StatusLine* const statusLine_;
    FileSaver* const saver_;
    Menus* const menus_;
    EventDock* const events_;
    QTimer tick_;
    QTimer refreshes_;
    QElapsedTimer sinceTick_;
    int zoomBefore_ = 100;
    QString linkAddress_;
    QString sessionDirectory_;
    std::chrono::milliseconds hourglass_{0};  // how long it has been there
};

}  // namespace Orvo::Manager
