#pragma once

#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include <QToolBar>

#include "Manager/Station/notices.h"

namespace Orvo::Manager {

/// What goes on in the amplifier, a button each, which leads to what it speaks of.
class NoticeBar final : public QToolBar {
    Q_OBJECT

public:
    using Lead = std::function<void(Widgets::WidgetId)>;

    NoticeBar(Lead lead, QWidget* parent);

    /// Null when nothing is known.
    void show(const std::optional<std::vector<Notice>>& notices);

private:
    void addButton();
    void fill(QAction& button, const Notice& notice);

    const Lead lead_;
    QAction* quiet_;
    std::vector<QAction*> buttons_;
    std::optional<std::vector<Notice>> shown_{std::in_place};
};

}  // namespace Orvo::Manager
