#include "Artwork/Maker/pictures.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QtEndian>

namespace Orvo::Artwork {
namespace {

QByteArray kept(const char* name) {
    QFile file(QString(ORVO_PICTURES "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

struct Kind {
    const char* file = "";
    const char* format = "";
    QSize size;
    int depth = 0;  // as a bitmap's header has it; 0 for others
};

TEST(PicturesTest, AreOfTheirKindsAndSizes) {
    const Kind kinds[] = {{"common-tab.bmp", "BMP", {629, 453}, 16},
                          {"pair-tab.jpg", "JPG", {700, 432}, 0},
                          {"toolbox.bmp", "BMP", {16, 15}, 4},
                          {"marvane-manager-48.png", "PNG", {48, 48}, 0},
                          {"marvane-manager-128.png", "PNG", {128, 128}, 0},
                          {"marvane-manager-256.png", "PNG", {256, 256}, 0}};
    for (const Kind& kind : kinds) {
        const QByteArray bytes = kept(kind.file);
        EXPECT_EQ(QImage::fromData(bytes, kind.format).size(), kind.size) << kind.file;
        if (kind.depth == 0) continue;
        EXPECT_EQ(qFromLittleEndian<quint16>(bytes.constData() + 28), kind.depth) << kind.file;
    }
}

// The largest of all differences between two colours. Another processor or library may round one
// another way.
int difference(const QByteArray& a, const QByteArray& b) {
    const QImage one = QImage::fromData(a).convertToFormat(QImage::Format_RGBA8888);
    const QImage other = QImage::fromData(b).convertToFormat(QImage::Format_RGBA8888);
    if (one.isNull() || one.size() != other.size()) return 255;
    int largest = 0;
    for (qsizetype i = 0; i < one.sizeInBytes(); ++i) {
        largest = qMax(largest, qAbs(one.constBits()[i] - other.constBits()[i]));
    }
    return largest;
}

TEST(PicturesTest, AreWhatTheDrawingsMakeToday) {
    for (const Picture& picture : pictures()) {
        const QByteArray file = kept(picture.file);
        const QByteArray made = picture.make();
        EXPECT_TRUE(file == made || difference(file, made) < 24)
            << picture.file << " is older than its drawing; \"Tools/accept artwork\" renews it";
    }
}

}  // namespace
}  // namespace Orvo::Artwork
