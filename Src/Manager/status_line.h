#pragma once

#include <QLabel>
#include <QTimer>
#include <QWidget>

#include "Manager/Station/status_text.h"
#include "Manager/alert_label.h"

namespace Orvo::Manager {

/// The line below the panel: link, what is connected, how old its last word is, and for a few
/// seconds what has just been done.
class StatusLine final : public QWidget {
public:
    explicit StatusLine(QWidget* parent = nullptr);

    void showText(const StatusText& text);
    /// What else a person has to know all the time: "Read-only"; mostly nothing.
    void showMode(const QString& mode);
    void showZoom(int percent) { zoom_->setText(QString::number(percent) + " %"); }
    void say(const QString& message);

private:
    template <class Label>
    Label* add(const QString& name);

    AlertLabel* link_;
    QLabel* connection_;
    AlertLabel* lastWord_;
    bool isStale_ = false;
    QLabel* message_;
    QLabel* mode_;
    QLabel* zoom_;
    QTimer messageEnds_;
};

}  // namespace Orvo::Manager
