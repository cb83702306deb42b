#include "Manager/Window/file_saver.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include "Manager/Window/file_choice.h"
#include "Manager/Window/warning.h"

namespace Orvo::Manager {

QString write(const QString& path, const QByteArray& content) {
    QSaveFile file(path);
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
    return isWritten ? QString() : file.errorString();
}

FileSaver::FileSaver(QWidget& window) : QObject(&window), window_(window) {}

void FileSaver::ask(const SavedFile& file) {
    askForFile(window_,
               {.title = "Save the " + file.what,
                .kind = file.kind,
                .ending = QFileInfo(file.name).suffix(),
                .directory = directory_,
                .name = dated(file.name)},
               [this, file](const QString& path) { save(path, file); });
}

void FileSaver::save(const QString& path, const SavedFile& file) {
    const QString error = write(path, file.content);
    if (error.isEmpty()) {
        directory_ = QFileInfo(path).absolutePath();
        emit said("Saved " + QDir::toNativeSeparators(path));
        return;
    }
    showWarning(window_, "Not saved", "The " + file.what + " could not be saved.",
                QDir::toNativeSeparators(path) + ": " + error);
}

}  // namespace Orvo::Manager
