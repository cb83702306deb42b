#pragma once

#include <QString>
#include <QWidget>

namespace Orvo::Window {

/// Says a value beside what a hand holds, over everything else on the page.
class ValueBubble final : public QWidget {
    Q_OBJECT

public:
    explicit ValueBubble(QWidget& page);

    /// To the left of a point of the page.
    void say(const QString& value, QPointF at, double zoom);
    [[nodiscard]] const QString& value() const { return value_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] double tip() const { return height() / 4.0; }

    QString value_;
};

}  // namespace Orvo::Window
