#include "Manager/Window/files.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>

#include "Manager/Window/warning.h"

namespace Orvo::Manager {
namespace {

class FileDialogs {
    Q_DECLARE_TR_FUNCTIONS(Orvo::Manager::FileDialogs)
};

using Use = std::function<void(const QString& path)>;
using Otherwise = std::function<void()>;

// The dialog's own question would take the file's name for markup, and hold up whoever closes the
// window.
void askToOverwrite(QWidget& window, const QString& path, const Otherwise& agreed,
                    const Otherwise& refused) {
    auto* box = new QMessageBox(QMessageBox::Question, FileDialogs::tr("Overwrite the file?"),
                                FileDialogs::tr("There is a file of this name already."),
                                QMessageBox::Yes | QMessageBox::No, &window);
    explain(*box, path);
    QObject::connect(box, &QDialog::finished, &window, [agreed, refused](int answer) {
        answer == QMessageBox::Yes ? agreed() : refused();
    });
    box->open();
}

}  // namespace

void askForFile(QWidget& window, const FileQuestion& question, const Use& use,
                const Otherwise& otherwise) {
    auto* dialog = new QFileDialog(&window, question.title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    dialog->setAcceptMode(question.mode);
    const bool isOpening = question.mode == QFileDialog::AcceptOpen;
    // Whoever opens one that is not there says so: a box of the toolkit has a loop of its own, from
    // which it comes back to a dialog that may be gone.
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDefaultSuffix(question.ending);
    dialog->setNameFilters(
        {question.kind + " (*." + question.ending + ")", FileDialogs::tr("All files (*)")});
    dialog->setDirectory(question.directory.isEmpty() ? QDir::homePath() : question.directory);
    dialog->selectFile(question.name);
    QObject::connect(dialog, &QFileDialog::fileSelected, &window,
                     [=, &window](const QString& path) {
                         if (isOpening || !QFileInfo::exists(path)) return use(path);
                         askToOverwrite(
                             window, path, [=] { use(path); },
                             [=, &window] { askForFile(window, question, use, otherwise); });
                     });
    QObject::connect(dialog, &QFileDialog::rejected, &window, otherwise);
    dialog->open();
}

std::string nativeName(const QString& file) { return QFile::encodeName(file).toStdString(); }

void write(const QString& path, const QByteArray& content, Script::Existing existing) {
    Script::NewFile file(nativeName(path), existing, Script::Readers::usual);
    file.write({content.data(), std::size_t(content.size())});
    file.keep();
}

QString dated(const QString& name) {
    const QFileInfo file(name);
    const QString time = QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss");
    return file.completeBaseName() + '-' + time + '.' + file.suffix();
}

}  // namespace Orvo::Manager
