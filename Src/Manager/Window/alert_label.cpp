#include "Manager/Window/alert_label.h"

#include <QAccessibleWidget>

namespace Orvo::Manager {
namespace {

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

}  // namespace Orvo::Manager
