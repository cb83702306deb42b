#include <cstdio>

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>

#include "Artwork/Maker/pictures.h"

namespace {

bool write(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    std::fprintf(stderr, "orvo-artwork: %s: %s\n", qPrintable(path),
                 qPrintable(file.errorString()));
    return false;
}

}  // namespace

// Makes the pictures in the directory that it is given.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("Usage: orvo-artwork DIRECTORY\n", stderr);
        return 2;
    }
    for (const auto& picture : Orvo::Artwork::pictures()) {
        const QString path = QDir(arguments[1]).filePath(picture.file);
        if (!write(path, picture.make())) return 1;
    }
    return 0;
}
