#include <stdexcept>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>

#include "Manager/Scope/scope_window.h"
#include "Manager/Window/manager_window.h"
#include "Manager/Window/pictures.h"
#include "Manager/Window/shortcuts.h"
#include "Manager/Window/warning.h"
#include "Orvo/layout/roles.h"
#include "Orvo/store/store.h"
#include "Orvo/store/stored_widgets.h"

// What the menus command.
namespace Orvo::Manager {
namespace {

constexpr int kAboutIcon = 64;

QString channelName(Integer channel) { return "channel-" + QString::number(channel); }

}  // namespace

void ManagerWindow::save(const SavedFile& file, QWidget& window) {
    askForFile(window,
               {.title = tr("Save the %1").arg(file.what),
                .kind = file.kind,
                .ending = QFileInfo(file.name).suffix(),
                .directory = savedDirectory_,
                .name = dated(file.name)},
               [this, file](const QString& path) { write(file, path); });
}

void ManagerWindow::write(const SavedFile& file, const QString& path) {
    try {
        Manager::write(path, file.content, Script::Existing::overwritten);
    } catch (const std::runtime_error& failure) {
        showWarning(*this, tr("Not saved"), tr("The %1 could not be saved.").arg(file.what),
                    QFile::decodeName(failure.what()));
        return;
    }
    savedDirectory_ = QFileInfo(path).absolutePath();
    statusLine_->say(tr("Saved %1").arg(QDir::toNativeSeparators(path)));
}

void ManagerWindow::savePicture() {
    save({tr("picture of the panel"), tr("PNG pictures"), "marvane-panel.png",
          toPng(pictureOf(*panel_))});
}

void ManagerWindow::saveScopePicture(Integer channel) {
    save({tr("picture of the scope"), tr("PNG pictures"),
          "marvane-scope-" + channelName(channel) + ".png",
          toPng(pictureOfScope(*panel_, channel))});
}

void ManagerWindow::saveTrace(Integer channel) {
    if (!session_.station().traces().has(channel)) {
        return statusLine_->say(tr("There is no trace on channel %1").arg(channel));
    }
    const std::string csv = traceCsv({&session_.station().traces().trace(channel), 1});
    save({tr("samples of the trace"), tr("Comma-separated values"),
          "marvane-trace-" + channelName(channel) + ".csv", QByteArray::fromStdString(csv)});
}

void ManagerWindow::copyMessageLog() {
    QApplication::clipboard()->setText(QString::fromStdString(session_.log()));
    statusLine_->say(tr("The message log is on the clipboard"));
}

void ManagerWindow::saveMessageLog() {
    save({tr("message log"), tr("Texts"), "marvane-log.txt",
          QByteArray::fromStdString(session_.log())});
}

void ManagerWindow::selectTab(int tab) {
    panel_->store().perform(Runtime::Deed::tab(Layout::kTabs.id, tab - 1));
}

void ManagerWindow::setZoom(std::optional<int> percent) { zoomArea_->choose(percent); }

void ManagerWindow::zoomIn() { zoomArea_->zoomIn(); }
void ManagerWindow::zoomOut() { zoomArea_->zoomOut(); }

void ManagerWindow::showScopes(bool isShown) {
    if (scopes_ == nullptr) makeScopes();
    scopes_->setVisible(isShown);
}

void ManagerWindow::makeScopes() {
    scopes_ = new ScopeWindow(session_.station(), this);
    scopes_->restoreGeometry(scopesGeometry_);
    connect(scopes_, &ScopeWindow::pictureWanted, this, [this](const QImage& picture) {
        save(
            {tr("picture of the scopes"), tr("PNG pictures"), "marvane-scopes.png", toPng(picture)},
            *scopes_);
    });
    connect(scopes_, &ScopeWindow::samplesWanted, this, [this](const auto& traces) {
        save({tr("samples of the traces"), tr("Comma-separated values"), "marvane-traces.csv",
              QByteArray::fromStdString(traceCsv(traces))},
             *scopes_);
    });
}

bool ManagerWindow::areScopesShown() const { return scopes_ != nullptr && scopes_->isVisible(); }

// Beside the panel, not in its place, where the screen has room for both.
void ManagerWindow::showEvents(bool isShown) {
    if (isShown == areEventsShown()) return;
    const int more = isShown ? events_->sizeHint().width() : -events_->width();
    events_->setVisible(isShown);
    if (isFullScreen() || isMaximized() || events_->isFloating()) return;
    resize(width() + more, height());
    keepOnScreen();
}

void ManagerWindow::copyEvents() {
    QApplication::clipboard()->setText(events_->text());
    statusLine_->say(tr("The events are on the clipboard"));
}

void ManagerWindow::saveEvents() {
    save({tr("events"), tr("Texts"), "marvane-events.txt", events_->text().toUtf8() + '\n'});
}

void ManagerWindow::showShortcuts() {
    if (scopes_ == nullptr) makeScopes();  // which have keys, too
    openShortcutsDialog(*this);
}

void ManagerWindow::showAbout() {
    auto* box = new QMessageBox(QMessageBox::NoIcon, tr("About Marvane Manager"),
                                tr("Marvane Manager %1").arg(QApplication::applicationVersion()),
                                QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIconPixmap(windowIcon().pixmap(kAboutIcon));
    box->setInformativeText(
        tr("The front panel of a four-channel power amplifier, for service and monitoring, with a "
           "simulated amplifier behind it.\n\nUses Qt %1.")
            .arg(qVersion()));
    box->open();
}

}  // namespace Orvo::Manager
