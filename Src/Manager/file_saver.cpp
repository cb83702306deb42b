#include "Manager/file_saver.h"

#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QSaveFile>

namespace Orvo::Manager {
namespace {

// "marvane-panel.png" becomes "marvane-panel-20260314-150926.png".
QString dated(const QString& name) {
    const QFileInfo file(name);
    const QString time = QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss");
    return file.completeBaseName() + '-' + time + '.' + file.suffix();
}

}  // namespace

QString write(const QString& path, const QByteArray& content) {
    QSaveFile file(path);
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
    return isWritten ? QString() : file.errorString();
}

FileSaver::FileSaver(QWidget& window)
    : QObject(&window), window_(window), directory_(QDir::homePath()) {}

void FileSaver::ask(const SavedFile& file) {
    auto* dialog = new QFileDialog(&window_, "Save the " + file.what);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QFileInfo(file.name).suffix());
    dialog->setNameFilters(
        {file.kind + " (*." + QFileInfo(file.name).suffix() + ")", "All files (*)"});
    dialog->setDirectory(directory_);
    dialog->selectFile(dated(file.name));
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, file](const QString& path) { save(path, file); });
    dialog->open();
}

void FileSaver::save(const QString& path, const SavedFile& file) {
    const QString error = write(path, file.content);
    if (error.isEmpty()) {
        directory_ = QFileInfo(path).absolutePath();
        emit said("Saved " + QDir::toNativeSeparators(path));
        return;
    }
    auto* box =
        new QMessageBox(QMessageBox::Warning, "Not saved",
                        "The " + file.what + " could not be saved.", QMessageBox::Ok, &window_);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(QDir::toNativeSeparators(path) + ": " + error);
    box->open();
}

}  // namespace Orvo::Manager
