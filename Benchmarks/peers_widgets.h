#pragma once

#include <array>
#include <memory>
#include <vector>

#include <QPixmap>
#include <QWidget>

#include "Orvo/values/types.h"

// What a panel and its parts cost when each is a plain widget.
class QLCDNumber;
class QLabel;

namespace Orvo::Benchmarks {

class RowWidget;

/// A widget for each row of the layout, which is drawn as simply as it can be told apart.
class WidgetPanel final : public QWidget {
public:
    explicit WidgetPanel(Integer tab);

    /// Changes every digit and every lamp, and what stands beside the power lamp.
    void pushEverything(int turn);

private:
    std::array<QWidget*, 3> pages_{};
    std::vector<RowWidget*> digits_;
    std::vector<RowWidget*> lamps_;
    std::vector<RowWidget*> states_;
};

std::unique_ptr<WidgetPanel> makeWidgetPanel(Integer tab);

/// As many of Qt's own readouts as a pair tab has, and labels for its lamps.
class ReadoutPanel final : public QWidget {
public:
    ReadoutPanel();
    void pushEverything(int turn);

private:
    std::vector<QLCDNumber*> readouts_;
    std::vector<QLabel*> lamps_;
};

/// A window of the panel's size, with one child that paints a picture it keeps.
class KeptChildWindow final : public QWidget {
public:
    explicit KeptChildWindow(QRect place);
    void change() { child_->update(); }

private:
    QWidget* child_;
};

/// A window's picture, and a copy of it.
class CopiedWindow {
public:
    explicit CopiedWindow(const QWidget& window);
    void copy();

private:
    const QPixmap picture_;
    QPixmap copy_;
};

/// Objects on the heap with the plainest state, one for each row of the layout.
struct PlainObject {
    virtual ~PlainObject() = default;

    String text;
    Colour colour;
    bool isVisible = true;
    bool isEnabled = true;
};

std::vector<std::unique_ptr<PlainObject>> makePlainObjects();

}  // namespace Orvo::Benchmarks
