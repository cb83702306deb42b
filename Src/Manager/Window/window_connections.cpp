#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QInputDialog>

#include "Manager/Station/replay_device.h"
#include "Manager/Window/file_choice.h"
#include "Manager/Window/manager_window.h"
#include "Manager/Window/warning.h"

// What plays the panel's host, and what is kept of it.
namespace Orvo::Manager {
namespace {

constexpr auto kSessions = "Sessions in panel script";
constexpr auto kSessionEnding = "txt";
constexpr int kDialogWidth = 420;

std::string nativeName(const QString& file) { return QFile::encodeName(file).toStdString(); }

}  // namespace

void ManagerWindow::connectSimulator(Simulator::PowerAtStart power) {
    stopReplay();
    station_.connectSimulator(options_.seed, power);
}

void ManagerWindow::connectLink(const LinkAddress& address) {
    stopReplay();
    linkAddress_ = QFile::decodeName(address.text().c_str());
    station_.connectLink(address);
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

void ManagerWindow::connectNothing() {
    stopReplay();
    station_.disconnect();
}

std::unique_ptr<Script::Recorder> ManagerWindow::makeRecorder(const QString& file) {
    const auto answers =
        options_.recordsAnswers ? Script::Answers::inFull : Script::Answers::asCancelled;
    return std::make_unique<Script::Recorder>(nativeName(file), owner_, answers);
}

void ManagerWindow::askForRecording() {
    askForFile(*this,
               {.title = "Record the session",
                .kind = kSessions,
                .ending = kSessionEnding,
                .directory = sessionDirectory_,
                .name = dated("marvane-session.txt")},
               [this](const QString& file) {
                   startRecording(file);
                   refresh();
               });
}

// Where nothing can be recorded, nothing is given up.
void ManagerWindow::startRecording(const QString& file) {
    QFile probe(file);
    if (!probe.open(QIODevice::Append)) {
        return showWarning(*this, "Not recorded", "The session can't be recorded.",
                           QDir::toNativeSeparators(file) + ": " + probe.errorString());
    }
    probe.close();
    stopReplay();
    stopRecording();
    const bool wasReadOnly = isReadOnly();
    const int tabInFront = tab();
    recorder_ = makeRecorder(file);
    sessionDirectory_ = QFileInfo(file).absolutePath();
    station_.listenWith(recorder_.get());
    station_.startAnew();
    if (wasReadOnly && !isReadOnly()) setReadOnly(true);
    selectTab(tabInFront);
    statusLine_->say("Recording from a fresh start to " + QFileInfo(file).fileName());
}

void ManagerWindow::stopRecording() {
    if (!isRecording()) return;
    station_.listenWith(nullptr);
    recorder_.reset();
    statusLine_->say("The session is recorded");
}

void ManagerWindow::askForReplay() {
    askForFile(*this,
               {.title = "Replay a session",
                .kind = kSessions,
                .ending = kSessionEnding,
                .mode = QFileDialog::AcceptOpen,
                .directory = sessionDirectory_},
               [this](const QString& file) {
                   startReplay(file);
                   refresh();
               });
}

void ManagerWindow::startReplay(const QString& file) {
    QFile script(file);
    if (!script.open(QIODevice::ReadOnly)) {
        return showWarning(*this, "Not replayed", "The session can't be read.",
                           QDir::toNativeSeparators(file) + ": " + script.errorString());
    }
    stopRecording();
    sessionDirectory_ = QFileInfo(file).absolutePath();
    script.close();
    station_.connect([this, path = nativeName(file)] {
        return std::make_unique<ReplayDevice>(station_.owner(), owner_, WindowPanel::kGrammar,
                                              path);
    });
    station_.owner().renew();
}

void ManagerWindow::stopReplay() {
    if (!isReplaying()) return;
    station_.disconnect();
    if (options_.isReadOnly) setReadOnly(true);
    statusLine_->say("The replay is over");
}

ReplayDevice* ManagerWindow::replay() const {
    return dynamic_cast<ReplayDevice*>(station_.device());
}

void ManagerWindow::endReplayThatIsOver() {
    const ReplayDevice* device = replay();
    if (device == nullptr || !device->replay().isOver()) return;
    const auto complaint = device->replay().complaint();
    stopReplay();
    if (!complaint) return;
    showWarning(*this, "The replay ended early", "The session has a line that can't be replayed.",
                QString::fromStdString(*complaint));
}

}  // namespace Orvo::Manager
