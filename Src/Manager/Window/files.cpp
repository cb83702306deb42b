#include "Manager/Window/files.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace Orvo::Manager {

void askForFile(QWidget& window, const FileQuestion& question,
                const std::function<void(const QString& path)>& use) {
    auto* dialog = new QFileDialog(&window, question.title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(question.mode);
    const bool isOpening = question.mode == QFileDialog::AcceptOpen;
    dialog->setFileMode(isOpening ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog->setDefaultSuffix(question.ending);
    dialog->setNameFilters({question.kind + " (*." + question.ending + ")", "All files (*)"});
    dialog->setDirectory(question.directory.isEmpty() ? QDir::homePath() : question.directory);
    dialog->selectFile(question.name);
    QObject::connect(dialog, &QFileDialog::fileSelected, &window, use);
    dialog->open();
}

QString write(const QString& path, const QByteArray& content) {
    QSaveFile file(path);
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
    return isWritten ? QString() : file.errorString();
}

QString dated(const QString& name) {
    const QFileInfo file(name);
    const QString time = QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss");
    return file.completeBaseName() + '-' + time + '.' + file.suffix();
}

}  // namespace Orvo::Manager
