#include "Artwork/Maker/metafile.h"

#include "Artwork/Maker/bytes.h"
#include "Artwork/Maker/metafile_engine.h"

namespace Orvo::Artwork {

namespace {

// What the file says it was made on: a display of 96 dots per inch.
constexpr QSize kDisplay(1920, 1080);
constexpr QSize kDisplayMillimetres(508, 286);
constexpr int kHundredthsPerInch = 2540;
constexpr int kDotsPerInch = 96;
constexpr std::uint32_t kHeaderSize = 88;

// The title follows the program's name; each ends with a zero, and both with another.
QByteArray descriptionOf(const QString& title) {
    Bytes text;
    for (const QString& part : {QString("Orvo"), title, QString()}) {
        for (const QChar character : part) text.add(character.unicode());
        text.add(std::uint16_t{0});
    }
    return text.all();
}

int hundredths(int pixels) { return pixels * kHundredthsPerInch / kDotsPerInch; }

}  // namespace

Metafile::Metafile(QSize size) : size_(size), engine_(std::make_unique<MetafileEngine>(size)) {}
Metafile::~Metafile() = default;

QByteArray Metafile::file(const QString& title) const {
    const QByteArray description = descriptionOf(title);
    const QByteArray padded = Bytes().add(description).padTo(4).all();
    const auto headerSize = std::uint32_t(kHeaderSize + padded.size());
    const auto fileSize = std::uint32_t(headerSize + engine_->records().size());
    constexpr std::uint32_t kHeader = 1;
    constexpr std::uint32_t kSignature = 0x464D4520;
    constexpr std::uint32_t kVersion = 0x10000;
    Bytes header;
    header.add(kHeader, headerSize);
    header.add(0, 0, size_.width() - 1, size_.height() - 1);
    header.add(0, 0, hundredths(size_.width()), hundredths(size_.height()));
    header.add(kSignature, kVersion, fileSize, engine_->recordCount() + 1);
    header.add(MetafileEngine::kHandles, std::uint16_t{0});
    header.add(std::uint32_t(description.size() / 2), kHeaderSize, 0U);
    header.add(kDisplay.width(), kDisplay.height());
    header.add(kDisplayMillimetres.width(), kDisplayMillimetres.height());
    return header.add(padded).add(engine_->records()).all();
}

QPaintEngine* Metafile::paintEngine() const { return engine_.get(); }

int Metafile::metric(PaintDeviceMetric metric) const {
    switch (metric) {
        case PdmWidth:
            return size_.width();
        case PdmHeight:
            return size_.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return kDotsPerInch;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 0;
    }
}

}  // namespace Orvo::Artwork
