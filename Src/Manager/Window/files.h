#pragma once

#include <functional>

#include <QByteArray>
#include <QFileDialog>
#include <QString>

namespace Orvo::Manager {

/// What a person wants to keep.
struct SavedFile {
    QString what;        ///< "picture of the panel"
    QString kind;        ///< "PNG pictures"
    QString name;        ///< suggested, with its ending: "marvane-panel.png"
    QByteArray content;  ///< as it was when the person asked
};

/// What a person is asked for a file for.
struct FileQuestion {
    QString title;     ///< "Save the picture of the panel"
    QString kind{};    ///< "PNG pictures"
    QString ending{};  ///< "png"
    QFileDialog::AcceptMode mode = QFileDialog::AcceptSave;
    QString directory{};  ///< empty: the home directory
    QString name{};       ///< suggested
};

/// Whatever the person does meanwhile goes on.
void askForFile(QWidget& window, const FileQuestion& question,
                const std::function<void(const QString& path)>& use);

/// Writes the file as a whole or not at all; empty when done, else why it failed.
QString write(const QString& path, const QByteArray& content);

/// "marvane-panel.png" becomes "marvane-panel-20260314-150926.png".
QString dated(const QString& name);

}  // namespace Orvo::Manager
