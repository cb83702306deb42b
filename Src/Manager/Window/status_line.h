#pragma once

#include <QLabel>
#include <QTimer>
#include <QWidget>

#include "Manager/Station/status_text.h"
#include "Manager/Window/labels.h"

namespace Orvo::Manager {

/// The line below the panel: link, what is connected, how old its last word is, and for a few
/// seconds what has just been done. Where it is narrow, the link, the last word and the zoom stay
/// whole.
class StatusLine final : public QWidget {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

    void showText(const StatusText& text);
    /// What else a person has to know all the time: "Read-only"; mostly nothing.
    void showMode(const QString& mode);
    void showZoom(int percent) { zoom_->setText(tr("%1 %").arg(percent)); }
    void say(const QString& message);

    /// As narrow as it can be: no text widens the window that has room for it.
    [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }

private:
    template <class Label>
    Label* add(const QString& name);

    AlertLabel* link_;
    ElidedLabel* connection_;
    AlertLabel* lastWord_;
    bool isStale_ = false;
    ElidedLabel* message_;
    ElidedLabel* mode_;
    QLabel* zoom_;
    QTimer messageEnds_;
};

}  // namespace Orvo::Manager
