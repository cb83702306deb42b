#pragma once

#include <functional>
#include <utility>

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>
#include <QToolButton>

#include "Manager/Ports/offered_ports.h"
#include "Manager/Session/manager_session.h"
#include "Manager/Window/choices.h"
#include "Manager/Window/event_dock.h"
#include "Manager/Window/files.h"
#include "Manager/Window/menus.h"
#include "Manager/Window/notice_bar.h"
#include "Manager/Window/options.h"
#include "Manager/Window/status_line.h"
#include "Manager/Window/window_panel.h"
#include "Manager/Window/zoom_area.h"
#include "Orvo/window/panel_widget.h"

namespace Orvo::Manager {

class ScopeWindow;

/// The program's window: the panel, and what a person can do beside it with the session.
class ManagerWindow final : public QMainWindow, private SessionObserver {
    Q_OBJECT

public:
    /// Throws std::runtime_error when the session is to be recorded in a file that can't be made.
    /// Choices come from the settings, and go there when the window closes; null: there are none.
    explicit ManagerWindow(const Options& options = {}, QSettings* settings = nullptr);

    /// Shows the window, as the options say.
    void open();

    [[nodiscard]] Window::PanelWidget& panelWidget() { return *panel_; }
    /// Its time passes by itself.
    [[nodiscard]] ManagerSession& session() { return session_; }

    /// Brings menus, status line and event view up to date; that happens by itself several times
    /// a second.
    void refresh();

    /// The links that were connected, the last one first, as LinkAddress has them.
    [[nodiscard]] QStringList lastLinks() const { return lastLinks_; }
    void setLastLinks(const QStringList& links) { lastLinks_ = links; }
    /// What a person may choose from; this machine's ports unless it is set.
    void setPortOffer(PortOffer offer) { portOffer_ = std::move(offer); }

    // What the menus command.

    void connectLink(const LinkAddress& address);
    /// Asks for the address.
    void askForLink();

    void savePicture();
    void saveMessageLog();

    /// Tabs are counted from 1. One that is disabled doesn't come to the front.
    void selectTab(int tab);
    /// None: as fits the window.
    void setZoom(std::optional<int> percent);
    [[nodiscard]] std::optional<int> zoom() const { return zoomArea_->chosenZoom(); }
    void zoomIn();
    void zoomOut();
    void setFullScreen(bool isFullScreen);
    [[nodiscard]] Frame frame() const { return frame_; }
    void setFrame(Frame frame);

    void showScopes(bool isShown);
    void showEvents(bool isShown);
    void copyEvents();
    void saveEvents();

    void showShortcuts();
    void showAbout();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    friend class Menus;

    void askForRecording();
    /// A recording that is running is ended only if the person says so.
    void askForReplay();
    void askForReplayFile();
    void saveScopePicture(Integer channel);
    void saveTrace(Integer channel);
    void copyMessageLog();
    void makeScopes();
    [[nodiscard]] bool areScopesShown() const;
    [[nodiscard]] bool areEventsShown() const { return !events_->isHidden(); }

    void say(const std::string& message) override;
    void warn(const Failure& failure) override;
    void recordingStopped(const Failure& failure) override;

    void layOut();
    void startClock();
    void advance();
    [[nodiscard]] Choices choicesOfLastTime() const;
    void takeUp(const Choices& choices);
    [[nodiscard]] Choices choices();
    [[nodiscard]] QSize largestSize() const;
    void adaptSize();
    /// Brings a widget's tab to the front, and the keyboard to the widget if it is a control.
    void leadTo(Widgets::WidgetId widget);
    void keepOnScreen();
    void showFullScreenState();
    void showSituation();
    void showModes();
    [[nodiscard]] QString recordingText() const;
    QDialog& showFailure(const Failure& failure);
    /// Asks where to, above the window that the person wants it in.
    void save(const SavedFile& file, QWidget& window);
    void save(const SavedFile& file) { save(file, *this); }
    void write(const SavedFile& file, const QString& path);
    using UseOfSession = void (ManagerSession::*)(const std::string& file);
    void askForSession(
        FileQuestion question, UseOfSession use, const std::function<void()>& otherwise = [] {});
    void askToGoOnRecording();

    const Options options_;
    QSettings* const settings_;
    Window::PanelWidget* const panel_;
    ZoomArea* const zoomArea_;
    StatusLine* const statusLine_;
    NoticeBar* const notices_;
    QToolButton* const fullScreenExit_;
    WindowPanel owner_;
    ManagerSession session_;
    Menus* const menus_;
    EventDock* const events_;
    ScopeWindow* scopes_ = nullptr;  // none before it is shown first
    QTimer tick_;
    QTimer refreshes_;
    QElapsedTimer sinceTick_;
    std::optional<int> zoomBefore_;  // before full screen
    Frame frame_ = Frame::dark;
    bool wasFullScreen_ = false;
    QByteArray geometry_;  // of last time
    QByteArray scopesGeometry_;
    bool opensScopes_ = false;
    QStringList lastLinks_;
    PortOffer portOffer_ = offeredPorts;
    QString savedDirectory_;
    QString sessionDirectory_;
};

}  // namespace Orvo::Manager
