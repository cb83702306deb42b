#include <utility>

#include <QEvent>
#include <QMenuBar>

#include "Manager/Scope/scope_window.h"
#include "Manager/Window/manager_window.h"
#include "Orvo/store/store.h"
#include "Orvo/store/stored_widgets.h"

// How a person wants the window.
namespace Orvo::Manager {

Choices ManagerWindow::choicesOfLastTime() const {
    if (settings_ == nullptr) return {};
    if (options_.forgets) settings_->clear();
    return choicesIn(*settings_);
}

void ManagerWindow::takeUp(const Choices& choices) {
    selectTab(options_.tab.value_or(choices.tab));
    zoomArea_->choose(options_.zoom ? options_.zoom : choices.zoom);
    session_.station().conversation().setDetail(choices.detail);
    session_.station().conversation().setForm(choices.form);
    setFrame(choices.frame);
    lastLinks_ = choices.links;
    geometry_ = choices.geometry;
    scopesGeometry_ = choices.scopes;
    opensScopes_ = choices.hasScopes;
    restoreState(choices.docks);
}

Choices ManagerWindow::choices() {
    const auto& tabs = panel_->store().get<Runtime::StoredTabs>(Layout::kTabs.id);
    return {.geometry = saveGeometry(),
            .docks = saveState(),
            .scopes = scopes_ != nullptr ? scopes_->saveGeometry() : scopesGeometry_,
            .hasScopes = areScopesShown(),
            .zoom = isFullScreen() ? zoomBefore_ : zoomArea_->chosenZoom(),
            .tab = tabs.state().current + 1,
            .links = lastLinks_,
            .detail = session_.station().conversation().detail(),
            .form = session_.station().conversation().form(),
            .frame = frame_};
}

void ManagerWindow::setFrame(Frame frame) {
    frame_ = frame;
    paintFrame(frame);
}

void ManagerWindow::setFullScreen(bool isFullScreen) {
    setWindowState(windowState().setFlag(Qt::WindowFullScreen, isFullScreen));
}

bool ManagerWindow::event(QEvent* event) {
    if (event->type() == QEvent::ThemeChange) paintFrame(frame_);
    return QMainWindow::event(event);
}

void ManagerWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) showFullScreenState();
}

// The desktop has a key of its own for that, too.
void ManagerWindow::showFullScreenState() {
    if (std::exchange(wasFullScreen_, isFullScreen()) == isFullScreen()) return;
    menuBar()->setVisible(!isFullScreen());
    fullScreenExit_->setVisible(isFullScreen());
    if (isFullScreen()) zoomBefore_ = zoomArea_->chosenZoom();
    zoomArea_->choose(isFullScreen() ? std::nullopt : zoomBefore_);
    refresh();
}

}  // namespace Orvo::Manager
