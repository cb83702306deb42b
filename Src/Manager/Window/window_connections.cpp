#include <QFile>
#include <QFileInfo>
#include <QInputDialog>

#include "Manager/Window/file_choice.h"
#include "Manager/Window/manager_window.h"
#include "Manager/Window/warning.h"

// What a person is asked for when another host is to play, or a session is to be kept.
namespace Orvo::Manager {
namespace {

constexpr auto kSessions = "Sessions in panel script";
constexpr auto kSessionEnding = "txt";
constexpr int kDialogWidth = 420;

std::string nativeName(const QString& file) { return QFile::encodeName(file).toStdString(); }

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

void ManagerWindow::askForRecording() {
    askForFile(*this,
               {.title = "Record the session",
                .kind = kSessions,
                .ending = kSessionEnding,
                .directory = sessionDirectory_,
                .name = dated("marvane-session.txt")},
               [this](const QString& file) {
                   sessionDirectory_ = QFileInfo(file).absolutePath();
                   session_.startRecording(nativeName(file));
                   refresh();
               });
}

void ManagerWindow::askForReplay() {
    askForFile(*this,
               {.title = "Replay a session",
                .kind = kSessions,
                .ending = kSessionEnding,
                .mode = QFileDialog::AcceptOpen,
                .directory = sessionDirectory_},
               [this](const QString& file) {
                   sessionDirectory_ = QFileInfo(file).absolutePath();
                   session_.startReplay(nativeName(file));
                   refresh();
               });
}

}  // namespace Orvo::Manager
