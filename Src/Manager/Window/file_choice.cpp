#include "Manager/Window/file_choice.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

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

QString dated(const QString& name) {
    const QFileInfo file(name);
    const QString time = QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss");
    return file.completeBaseName() + '-' + time + '.' + file.suffix();
}

}  // namespace Orvo::Manager
