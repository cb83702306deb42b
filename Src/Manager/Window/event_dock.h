#pragma once

#include <QDockWidget>
#include <QPlainTextEdit>

#include "Manager/Station/event_log.h"

namespace Orvo::Manager {

/// The event view: the log's lines beside the panel, the newest in sight from its first letter on
/// unless a person has scrolled up.
class EventDock final : public QDockWidget {
    Q_OBJECT

public:
    /// The actions stand above the lines.
    EventDock(const EventLog& log, const QList<QAction*>& actions, QWidget* parent = nullptr);

    /// Brings what is new in the log to the screen, a good deal of it at a time.
    void refresh();
    /// All of the log.
    [[nodiscard]] QString text() const;

    void setVisible(bool visible) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void fill();
    void append();
    [[nodiscard]] bool showsNewest() const;
    void showNewest();

    const EventLog& log_;
    const QList<QAction*> actions_;
    QPlainTextEdit* lines_ = nullptr;  // none before it is shown first
    std::uint64_t shown_ = 0;
    std::uint64_t clears_ = 0;
};

}  // namespace Orvo::Manager
