#pragma once

#include <QPaintEngine>
#include <QPainterPath>
#include <QPen>
#include <QTransform>

#include "Artwork/Maker/bytes.h"

class QLinearGradient;

namespace Orvo::Artwork {

/// Turns what is painted into the records of a metafile.
class MetafileEngine final : public QPaintEngine {
public:
    static constexpr std::uint16_t kHandles = 3;  // none, the pen, the brush

    explicit MetafileEngine(QSize size);

    [[nodiscard]] const QByteArray& records() const { return records_.all(); }
    [[nodiscard]] std::uint32_t recordCount() const { return count_; }

    bool begin(QPaintDevice* device) override;
    bool end() override;
    void updateState(const QPaintEngineState& changed) override;
    void drawPath(const QPainterPath& path) override;
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    [[nodiscard]] Type type() const override { return User; }

private:
    void record(std::uint32_t type, const Bytes& content = {});
    void trace(const QPainterPath& outline);
    void stroke(const QPainterPath& outline);
    void fill(const QPainterPath& outline);
    void fillGraduated(const QPainterPath& outline, const QLinearGradient& light);
    void withObject(std::uint32_t handle, std::uint32_t stock, const QPainterPath& outline,
                    std::uint32_t operation);

    const QSize size_;
    Bytes records_;
    std::uint32_t count_ = 0;
    QPen pen_;
    QBrush brush_;
    QTransform transform_;
};

}  // namespace Orvo::Artwork
