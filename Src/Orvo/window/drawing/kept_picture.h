#pragma once

#include <functional>

#include <QColor>
#include <QPixmap>
#include <QString>

namespace Orvo::Window {

/// A picture that is drawn once in a process, for all that hold the same, and copied from then on.
/// It is kept in the device's own pixels, so that it looks as if it were drawn each time.
class KeptPicture {
public:
    /// What it shows. The key says all that this depends on, other than the device and the size.
    struct Drawing {
        std::function<QString()> key;
        std::function<void(QPainter&)> draw;
        QColor ground = Qt::transparent;
    };

    /// The drawing is only asked for when the device needs other pixels than the last one.
    void paint(QPainter& painter, const QRect& place, const Drawing& drawing);

private:
    void find(const QRect& place, double ratio, const Drawing& drawing);

    QPixmap picture_;
    QPointF phase_;  // of its corner within a device pixel
};

}  // namespace Orvo::Window
