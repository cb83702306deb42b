#include "Manager/Window/files.h"

#include <QChildEvent>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>

namespace Orvo::Manager {
namespace {

// The dialog's own question whether to overwrite a file takes its name for markup.
class PlainQuestions final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* dialog, QEvent* event) override {
        if (event->type() == QEvent::ChildPolished) {
            auto* box = qobject_cast<QMessageBox*>(static_cast<QChildEvent*>(event)->child());
            if (box != nullptr) box->setTextFormat(Qt::PlainText);
        }
        return QObject::eventFilter(dialog, event);
    }
};

}  // namespace

void askForFile(QWidget& window, const FileQuestion& question,
                const std::function<void(const QString& path)>& use,
                const std::function<void()>& otherwise) {
    auto* dialog = new QFileDialog(&window, question.title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->installEventFilter(new PlainQuestions(dialog));
    dialog->setAcceptMode(question.mode);
    const bool isOpening = question.mode == QFileDialog::AcceptOpen;
    dialog->setFileMode(isOpening ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog->setDefaultSuffix(question.ending);
    dialog->setNameFilters({question.kind + " (*." + question.ending + ")", "All files (*)"});
    dialog->setDirectory(question.directory.isEmpty() ? QDir::homePath() : question.directory);
    dialog->selectFile(question.name);
    QObject::connect(dialog, &QFileDialog::fileSelected, &window, use);
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
