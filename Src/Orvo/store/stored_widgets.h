#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "Orvo/store/operation.h"
#include "Orvo/store/state.h"
#include "Orvo/widgets/notification.h"
#include "Orvo/widgets/widgets.h"

// The store's widgets: each is the panel's interface over its state. Only the store makes them;
// the functions below the interface are its own and the person's.
namespace Orvo::Runtime {

class Store;

class StoredWidget {
public:
    StoredWidget(Store& store, WidgetId id);
    virtual ~StoredWidget() = default;
    StoredWidget(const StoredWidget&) = delete;
    StoredWidget& operator=(const StoredWidget&) = delete;

    [[nodiscard]] WidgetId id() const { return id_; }

    /// The widget's own state; its container may be hidden or disabled all the same.
    [[nodiscard]] bool isVisible() const { return isVisible_; }
    [[nodiscard]] bool isEnabled() const { return isEnabled_; }
    void show(bool visible);
    virtual void enable(bool enabled);

protected:
    [[nodiscard]] const Layout::Widget& description() const { return Layout::describe(id_); }
    [[nodiscard]] Store& store() const { return store_; }
    void observe(Operation operation) const;
    void changed();

    template <class Value>
    bool change(Value& kept, const Value& value) {
        if (kept == value) return false;
        kept = value;
        changed();
        return true;
    }

private:
    Store& store_;
    WidgetId id_;
    bool isVisible_;
    bool isEnabled_;
};

template <class State>
class StatefulWidget : public StoredWidget {
public:
    using StoredWidget::StoredWidget;
    [[nodiscard]] const State& state() const { return state_; }

protected:
    State state_;  // NOLINT(*-non-private-member-variables-in-classes): the derived kinds' own
};

class StoredLabel final : public StatefulWidget<LabelState>, public Widgets::Label {
public:
    StoredLabel(Store& store, WidgetId id);
    [[nodiscard]] String caption() const override;
    void setCaption(const String& caption) override;
    void setColour(Colour text) override;
};

class StoredShape final : public StatefulWidget<ShapeState>, public Widgets::Shape {
public:
    StoredShape(Store& store, WidgetId id);
    [[nodiscard]] Widgets::FillStyle fillStyle() const override;
    void setFillStyle(Widgets::FillStyle style) override;
};

class StoredLine final : public StatefulWidget<LineState>, public Widgets::Line {
public:
    StoredLine(Store& store, WidgetId id);
    void setColour(Colour colour) override;
    void setVisible(Boolean visible) override;
};

class StoredButton final : public StoredWidget, public Widgets::Button {
public:
    using StoredWidget::StoredWidget;
    void setEnabled(Boolean enabled) override;
};

class StoredOption final : public StatefulWidget<OptionState>, public Widgets::Option {
public:
    StoredOption(Store& store, WidgetId id);
    [[nodiscard]] bool value() const override;
    void setValue(bool value) override;
    void setEnabled(Boolean enabled) override;

    void select(Widgets::Cause cause);

private:
    void clear() { change(state_.value, false); }
};

class StoredCheck final : public StatefulWidget<CheckState>, public Widgets::Check {
public:
    using StatefulWidget::StatefulWidget;
    void setValue(Widgets::CheckValue value) override;
    void setEnabled(Boolean enabled) override;

    void flip();
};

class StoredCombo final : public StatefulWidget<ComboState>, public Widgets::Combo {
public:
    StoredCombo(Store& store, WidgetId id);
    void addItem(const String& text) override;
    [[nodiscard]] String text() const override;
    void setText(const String& text) override;
    void setEnabled(Boolean enabled) override;

    [[nodiscard]] bool hasItem(StringView text) const;
    void showText(const String& text) { change(state_.text, text); }
};

class StoredList final : public StatefulWidget<ListState>, public Widgets::List {
public:
    using StatefulWidget::StatefulWidget;
    void addItem(const String& text) override;
    void clear() override;
};

class StoredTimer final : public StatefulWidget<TimerState>, public Widgets::Timer {
public:
    StoredTimer(Store& store, WidgetId id);
    void setEnabled(Boolean enabled) override;

    void enable(bool enabled) override;
    /// Moves on to the first due time after `now`.
    void comeDue(std::chrono::milliseconds now);
};

/// The surface's border in pixels, on each side; what is inside it can be drawn on.
constexpr int kPictureBorder = 2;

class StoredPicture final : public StatefulWidget<PictureState>, public Widgets::Picture {
public:
    using StatefulWidget::StatefulWidget;
    void clear() override;
    void setDrawWidth(Integer pixels) override;
    void setScaleMode(Widgets::ScaleMode mode) override;
    [[nodiscard]] float scaleWidth() const override;
    [[nodiscard]] float scaleHeight() const override;
    void line(Widgets::Point from, Widgets::Point to, Colour colour) override;
    void setCurrentX(float x) override;
    void setCurrentY(float y) override;
    void setForeColour(Colour text) override;
    void setFontSize(float points) override;
    void print(const String& text) override;
    void polyline(std::vector<Widgets::Point> points, Colour colour) override;

    /// The drawing area in pixels.
    [[nodiscard]] int width() const;
    [[nodiscard]] int height() const;

private:
    void draw(Drawn drawn);
    void observePoint(std::span<const Widgets::Point> points, std::size_t i, Colour colour);
};

class StoredTabs final : public StatefulWidget<TabsState>, public Widgets::Tabs {
public:
    StoredTabs(Store& store, WidgetId id);
    void setCurrentTab(Integer tab) override;
    [[nodiscard]] Boolean tabEnabled(Integer tab) const override;
    void setTabEnabled(Integer tab, Boolean enabled) override;

    [[nodiscard]] bool isTabEnabled(int tab) const;
    void bringToFront(Integer tab) { change(state_.current, tab); }

private:
    [[nodiscard]] std::size_t checked(Integer tab) const;
    void leaveDisabledTab();
};

class StoredDigit final : public StatefulWidget<DigitState>, public Widgets::Digit {
public:
    using StatefulWidget::StatefulWidget;
    void setDigit(Integer digit) override;
};

class StoredSlider final : public StatefulWidget<SliderState>, public Widgets::Slider {
public:
    using StatefulWidget::StatefulWidget;
    [[nodiscard]] Integer position() const override;
    void setPosition(Integer position) override;
    [[nodiscard]] Boolean buttonDown() const override;
    void setMaximum(Integer position) override;
    void setEnabled(Boolean enabled) override;

    void hold(bool held) { change(state_.isHeld, held); }
    /// Moves as a person does, within the bounds. False when that changes nothing.
    bool moveTo(int position);
};

/// For widgets that never change: frames and images.
using StoredStill = StoredWidget;

}  // namespace Orvo::Runtime
