#include <stdexcept>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>

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

constexpr auto kFullScreenHint = "F11 leaves full screen";

QString channelName(Integer channel) { return "channel-" + QString::number(channel); }

}  // namespace

void ManagerWindow::save(const SavedFile& file) {
    askForFile(*this,
               {.title = "Save the " + file.what,
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
        showWarning(*this, "Not saved", "The " + file.what + " could not be saved.",
                    QFile::decodeName(failure.what()));
        return;
    }
    savedDirectory_ = QFileInfo(path).absolutePath();
    statusLine_->say("Saved " + QDir::toNativeSeparators(path));
}

void ManagerWindow::savePicture() {
    save({"picture of the panel", "PNG pictures", "marvane-panel.png", toPng(pictureOf(*panel_))});
}

void ManagerWindow::saveScopePicture(Integer channel) {
    save({"picture of the scope", "PNG pictures", "marvane-scope-" + channelName(channel) + ".png",
          toPng(pictureOfScope(*panel_, channel))});
}

void ManagerWindow::saveTrace(Integer channel) {
    if (!session_.station().traces().has(channel)) {
        return statusLine_->say("There is no trace on channel " + QString::number(channel));
    }
    const std::string csv = traceCsv(session_.station().traces().samples(channel));
    save({"samples of the trace", "Comma-separated values",
          "marvane-trace-" + channelName(channel) + ".csv", QByteArray::fromStdString(csv)});
}

QString ManagerWindow::messageLog() const {
    QStringList lines;
    const auto& log = panel_->store().get<Runtime::StoredList>(Layout::kCommon.log);
    for (const String& line : log.state().items) {
        lines += QString::fromUtf16(line.data(), qsizetype(line.size()));
    }
    return lines.join('\n');
}

void ManagerWindow::copyMessageLog() {
    QApplication::clipboard()->setText(messageLog());
    statusLine_->say("The message log is on the clipboard");
}

void ManagerWindow::saveMessageLog() {
    save({"message log", "Texts", "marvane-log.txt", messageLog().toUtf8() + '\n'});
}

void ManagerWindow::selectTab(int tab) {
    panel_->store().perform(Runtime::Deed::tab(Layout::kTabs.id, tab - 1));
}

void ManagerWindow::setZoom(int percent) {
    zoomArea_->setZoom(percent);
    adaptSize();
}

void ManagerWindow::zoomIn() { setZoom(nextLarger(zoomArea_->zoom())); }
void ManagerWindow::zoomOut() { setZoom(nextSmaller(zoomArea_->zoom())); }

void ManagerWindow::setFullScreen(bool isFullScreen) {
    if (isFullScreen == this->isFullScreen()) return;
    if (isFullScreen) zoomBefore_ = zoomArea_->zoom();
    menuBar()->setVisible(!isFullScreen);
    setWindowState(windowState() ^ Qt::WindowFullScreen);
    if (isFullScreen) {
        zoomArea_->setFitting(true);
        statusLine_->say(kFullScreenHint);
    } else {
        setZoom(zoomBefore_);
        statusLine_->unsay(kFullScreenHint);
    }
}

void ManagerWindow::showEvents(bool isShown) {
    events_->setVisible(isShown);
    adaptSize();
}

void ManagerWindow::copyEvents() {
    QApplication::clipboard()->setText(events_->text());
    statusLine_->say("The events are on the clipboard");
}

void ManagerWindow::showShortcuts() { openShortcutsDialog(*this); }

void ManagerWindow::showAbout() {
    auto* box = new QMessageBox(QMessageBox::Information, "About Marvane Manager",
                                "Marvane Manager " + QApplication::applicationVersion(),
                                QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(
        "The front panel of a four-channel power amplifier, for service and monitoring, with a "
        "simulated amplifier behind it.\n\nUses Qt " +
        QString(qVersion()) + ".");
    box->open();
}

}  // namespace Orvo::Manager
