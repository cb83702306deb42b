#include <QFile>
#include <QFileInfo>
#include <QInputDialog>

#include "Manager/Window/files.h"
#include "Manager/Window/manager_window.h"
#include "Manager/Window/warning.h"

// What a person is asked for when another host is to play, or a session is to be kept.
namespace Orvo::Manager {
namespace {

constexpr int kDialogWidth = 420;

}  // namespace

void ManagerWindow::connectLink(const LinkAddress& address) {
    linkAddress_ = QFile::decodeName(address.text().c_str());
    session_.connectLink(address);
}

QString ManagerWindow::connectLink(const QString& address) {
    const auto read = LinkAddress::read(nativeName(address.trimmed()));
    if (!read) return QString("A link is ") + kLinkAddressRule + ", not \"" + address + "\".";
    connectLink(*read);
    return {};
}

void ManagerWindow::askForLink() {
    auto* dialog = new QInputDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle("Connect a link");
    dialog->setLabelText(
        "Serial device, pseudo-terminal, pipe or local socket.\n"
        "A serial device's speed may follow it: /dev/ttyUSB0@115200");
    dialog->setTextValue(linkAddress_);
    dialog->setOkButtonText("Connect");
    dialog->resize(kDialogWidth, dialog->sizeHint().height());
    connect(dialog, &QInputDialog::textValueSelected, this, [this](const QString& address) {
        const QString error = connectLink(address);
        if (!error.isEmpty()) showWarning(*this, "Not connected", "This is no link.", error);
        refresh();
    });
    dialog->open();
}

void ManagerWindow::askForSession(FileQuestion question, UseOfSession use,
                                  const std::function<void()>& otherwise) {
    question.kind = "Sessions in panel script";
    question.ending = "txt";
    question.directory = sessionDirectory_;
    const auto useFile = [this, use](const QString& file) {
        sessionDirectory_ = QFileInfo(file).absolutePath();
        (session_.*use)(nativeName(file));
        refresh();
    };
    askForFile(*this, question, useFile, otherwise);
}

void ManagerWindow::askForRecording() {
    askForSession({.title = "Record the session", .name = dated("marvane-session.txt")},
                  &ManagerSession::startRecording);
}

void ManagerWindow::askToGoOnRecording() {
    if (!session_.hasRecordingStopped()) return;
    askForSession({.title = "Go on recording", .name = dated("marvane-session.txt")},
                  &ManagerSession::continueRecording, [this] { session_.stopRecording(); });
}

void ManagerWindow::askForReplay() {
    askForSession({.title = "Replay a session", .mode = QFileDialog::AcceptOpen},
                  &ManagerSession::startReplay);
}

}  // namespace Orvo::Manager
