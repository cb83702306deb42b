#include <QAbstractButton>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include "Manager/Window/files.h"
#include "Manager/Window/link_dialog.h"
#include "Manager/Window/manager_window.h"
#include "Manager/Window/warning.h"
#include "Orvo/window/drawing/shown_text.h"

// What a person is asked for when another host is to play, or a session is to be kept.
namespace Orvo::Manager {

void ManagerWindow::connectLink(const LinkAddress& address) {
    const QString text = QFile::decodeName(address.text().c_str());
    lastLinks_.removeAll(text);
    lastLinks_.prepend(text);
    lastLinks_ = lastLinks_.mid(0, kMostLastLinks);
    session_.connectLink(address);
}

void ManagerWindow::askForLink() { (new LinkDialog(*this, portOffer_))->open(); }

void ManagerWindow::askForSession(FileQuestion question, UseOfSession use,
                                  const std::function<void()>& otherwise) {
    question.kind = tr("Sessions in panel script");
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
    askForSession({.title = tr("Record the session"), .name = dated("marvane-session.txt")},
                  &ManagerSession::startRecording);
}

void ManagerWindow::askToGoOnRecording() {
    if (!session_.hasRecordingStopped()) return;
    askForSession({.title = tr("Go on recording"), .name = dated("marvane-session.txt")},
                  &ManagerSession::continueRecording, [this] {
                      if (session_.hasRecordingStopped()) session_.stopRecording();
                  });
}

void ManagerWindow::askForReplay() {
    if (!session_.isRecording() && !session_.hasRecordingStopped()) return askForReplayFile();
    auto* box =
        new QMessageBox(QMessageBox::Question, tr("Stop the recording?"),
                        tr("A session is being recorded. A replay needs the panel for itself."),
                        QMessageBox::NoButton, this);
    const QAbstractButton* stop = box->addButton(tr("&Stop recording"), QMessageBox::AcceptRole);
    box->setDefaultButton(box->addButton(tr("&Keep going"), QMessageBox::RejectRole));
    explain(*box, tr("What has been recorded stays in its file."));
    connect(box, &QDialog::finished, this, [this, box, stop] {
        if (box->clickedButton() == stop) askForReplayFile();
    });
    box->open();
}

// The title tells what the replay takes the place of.
void ManagerWindow::askForReplayFile() {
    const auto* device = session_.station().device();
    const QString title =
        device == nullptr
            ? tr("Replay a session")
            : tr("Replay a session instead of: %1").arg(QString::fromStdString(device->name()));
    askForSession({.title = Window::asTitle(title), .mode = QFileDialog::AcceptOpen},
                  &ManagerSession::startReplay);
}

}  // namespace Orvo::Manager
