#pragma once

#include <functional>

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>

#include "Manager/Session/manager_session.h"
#include "Manager/Window/event_dock.h"
#include "Manager/Window/files.h"
#include "Manager/Window/menus.h"
#include "Manager/Window/options.h"
#include "Manager/Window/status_line.h"
#include "Manager/Window/window_panel.h"
#include "Manager/Window/zoom_area.h"
#include "Orvo/window/panel_widget.h"

namespace Orvo::Manager {

/// The program's window: the panel, and what a person can do beside it with the session.
class ManagerWindow final : public QMainWindow, private SessionObserver {
    Q_OBJECT

public:
    /// Throws std::runtime_error when the session is to be recorded in a file that can't be made.
    explicit ManagerWindow(const Options& options = {});

    /// Shows the window, as the options say.
    void open();

    [[nodiscard]] Window::PanelWidget& panelWidget() { return *panel_; }
    /// Its time passes by itself.
    [[nodiscard]] ManagerSession& session() { return session_; }

    /// Brings menus, status line and event view up to date; that happens by itself several times
    /// a second.
    void refresh();

    // What the menus command.

    void connectLink(const LinkAddress& address);
    /// Also what a person types. Empty when the link is connected, else what is wrong with it.
    QString connectLink(const QString& address);

    void savePicture();
    void saveMessageLog();

    /// Tabs are counted from 1. One that is disabled doesn't come to the front.
    void selectTab(int tab);
    void setZoom(int percent);
    void zoomIn();
    void zoomOut();
    void setFullScreen(bool isFullScreen);

    void showEvents(bool isShown);
    void copyEvents();

    void showShortcuts();
    void showAbout();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    friend class Menus;

    /// Asks for the address; the last one is there to be taken again.
    void askForLink();
    void askForRecording();
    void askForReplay();
    void saveScopePicture(Integer channel);
    void saveTrace(Integer channel);
    void copyMessageLog();
    [[nodiscard]] bool areEventsShown() const { return !events_->isHidden(); }

    void say(const std::string& message) override;
    void warn(const Failure& failure) override;
    void recordingStopped(const Failure& failure) override;

    void layOut();
    void startClock();
    void advance();
    void adaptSize();
    void showSituation();
    void showModes();
    [[nodiscard]] QString recordingText() const;
    QDialog& showFailure(const Failure& failure);
    [[nodiscard]] QString messageLog() const;
    /// Asks where to.
    void save(const SavedFile& file);
    void write(const SavedFile& file, const QString& path);
    using UseOfSession = void (ManagerSession::*)(const std::string& file);
    void askForSession(
        FileQuestion question, UseOfSession use, const std::function<void()>& otherwise = [] {});
    void askToGoOnRecording();

    const Options options_;
    Window::PanelWidget* const panel_;
    ZoomArea* const zoomArea_;
    StatusLine* const statusLine_;
    WindowPanel owner_;
    ManagerSession session_;
    Menus* const menus_;
    EventDock* const events_;
    QTimer tick_;
    QTimer refreshes_;
    QElapsedTimer sinceTick_;
    int zoomBefore_ = 100;
    QString linkAddress_;
    QString savedDirectory_;
    QString sessionDirectory_;
};

}  // namespace Orvo::Manager
