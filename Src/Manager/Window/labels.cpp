#include "Manager/Window/labels.h"

#include <algorithm>

#include <QAccessibleWidget>
#include <QPainter>
#include <QStyle>

#include "Orvo/window/drawing/shown_text.h"

namespace Orvo::Manager {
namespace {

constexpr int kFewest = 4;  // characters

class AlertAccessible final : public QAccessibleWidget {
public:
    explicit AlertAccessible(AlertLabel& label)
        : QAccessibleWidget(&label, QAccessible::AlertMessage) {}

    [[nodiscard]] QString text(QAccessible::Text text) const override {
        if (text == QAccessible::Name) return static_cast<QLabel*>(widget())->text();
        return QAccessibleWidget::text(text);
    }
};

QAccessibleInterface* make(const QString&, QObject* object) {
    auto* label = dynamic_cast<AlertLabel*>(object);
    return label != nullptr ? new AlertAccessible(*label) : nullptr;
}

}  // namespace

AlertLabel::AlertLabel() { QAccessible::installFactory(make); }

// The X desktops' screen readers don't hear of alerts, but read one out that comes into view.
void AlertLabel::alert() {
    for (const auto type : {QAccessible::Alert, QAccessible::ObjectShow}) {
        QAccessibleEvent event(this, type);
        QAccessible::updateAccessibility(&event);
    }
}

void ElidedLabel::setFullText(const QString& text) {
    setText(Window::shown(text));
    setToolTip(Window::onLines(text));
}

QSize ElidedLabel::minimumSizeHint() const {
    const QSize whole = QLabel::minimumSizeHint();
    const int least = kFewest * fontMetrics().averageCharWidth() + 2 * margin();
    return {std::min(least, whole.width()), whole.height()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRect room = contentsRect().marginsRemoved(QMargins() + margin());
    const QString text = fontMetrics().elidedText(this->text(), Qt::ElideRight, room.width());
    style()->drawItemText(&painter, room, int(alignment()), palette(), isEnabled(), text,
                          foregroundRole());
}

}  // namespace Orvo::Manager
