#pragma once

#include <functional>

#include <QByteArray>
#include <QFileDialog>
#include <QString>

#include "Script/files.h"

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

/// Whatever the person does meanwhile goes on. The dialog asks whether a file may be overwritten.
void askForFile(
    QWidget& window, const FileQuestion& question,
    const std::function<void(const QString& path)>& use,
    const std::function<void()>& otherwise = [] {});

/// As the system has it.
std::string nativeName(const QString& file);

/// Writes the file as a whole or not at all. Throws std::runtime_error, "FILE: REASON".
void write(const QString& path, const QByteArray& content, Script::Existing existing);

/// "marvane-panel.png" becomes "marvane-panel-20260314-150926.png".
QString dated(const QString& name);

}  // namespace Orvo::Manager
