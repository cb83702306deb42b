#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

class QWidget;

namespace Orvo::Manager {

/// What a person wants to keep.
struct SavedFile {
    QString what;        ///< "picture of the panel"
    QString kind;        ///< "PNG pictures"
    QString name;        ///< suggested, with its ending: "marvane-panel.png"
    QByteArray content;  ///< as it was when the person asked
};

/// Writes the file as a whole or not at all; empty when done, else why it failed.
QString write(const QString& path, const QByteArray& content);

/// Asks where to save, and saves. Whatever the person does meanwhile goes on.
class FileSaver final : public QObject {
    Q_OBJECT

public:
    explicit FileSaver(QWidget& window);

    void ask(const SavedFile& file);

signals:
    /// For the status line.
    void said(const QString& message);

private:
    void save(const QString& path, const SavedFile& file);

    QWidget& window_;
    QString directory_;
};

}  // namespace Orvo::Manager
