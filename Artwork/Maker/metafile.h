#pragma once

#include <memory>

#include <QByteArray>
#include <QPaintDevice>

namespace Orvo::Artwork {

class MetafileEngine;

/// Paint on it, and it is an enhanced metafile. It takes opaque paths: plain and vertically
/// graduated fills, plain solid pens. Text, pixmaps and transparency are not for it.
class Metafile final : public QPaintDevice {
public:
    /// In pixels at 96 dots per inch, from (0, 0).
    explicit Metafile(QSize size);
    ~Metafile() override;
    Metafile(const Metafile&) = delete;
    Metafile& operator=(const Metafile&) = delete;

    /// The file, once painting is over.
    [[nodiscard]] QByteArray file(const QString& title) const;

    [[nodiscard]] QPaintEngine* paintEngine() const override;

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override;

private:
    const QSize size_;
    const std::unique_ptr<MetafileEngine> engine_;
};

}  // namespace Orvo::Artwork
