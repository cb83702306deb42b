#pragma once

#include <cstddef>
#include <type_traits>
#include <variant>

#include "Orvo/export.h"
#include "Orvo/layout/layout.h"
#include "Orvo/store/operation.h"
#include "Orvo/store/screen.h"
#include "Orvo/store/state.h"
#include "Orvo/store/store.h"
#include "Orvo/widgets/kind_table.h"
#include "Orvo/widgets/notification.h"
#include "Orvo/widgets/widgets.h"

// The store's widgets: each is the panel's interface over its state. Only the store makes them;
// the functions below the interface are its own and the person's.
namespace Orvo::Runtime {

using Widgets::For;
using Widgets::Kind;

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

    // An operation costs more to put together than to carry out: only for whoever observes it.
    [[nodiscard]] bool isObserved() const;
    void observe(Verb verb) const {
        if (isObserved()) observe(Operation{.verb = verb});
    }
    template <class Value>
    void observe(Verb verb, const Value& written) const {
        if (!isObserved()) return;
        if constexpr (std::is_enum_v<Value>) {
            observe({.verb = verb, .value = static_cast<Integer>(written)});
        } else {
            observe({.verb = verb, .value = written});
        }
    }
    template <class Value>
    [[nodiscard]] const Value& read(Verb verb, const Value& kept) const {
        observe(verb);
        return kept;
    }
    template <class Value>
    void write(Verb verb, Value& kept, const Value& value) {
        observe(verb, value);
        change(kept, value);
    }

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

/// A kind without a state of its own is its interface alone.
template <class Interface, class State = std::monostate>
class StoredKind : public StoredWidget, public Interface {
public:
    using StoredWidget::StoredWidget;
    [[nodiscard]] const State& state() const { return state_; }

protected:
    State state_;  // NOLINT(*-non-private-member-variables-in-classes): the derived kinds' own
};

template <class Interface, class State = std::monostate>
class StoredEnableable : public StoredKind<Interface, State> {
public:
    using StoredKind<Interface, State>::StoredKind;
    void setEnabled(Boolean enabled) final {
        this->observe(Verb::setEnabled, enabled.raw());
        this->enable(bool(enabled));
    }
};

class StoredLabel final : public StoredKind<Widgets::Label, LabelState> {
public:
    StoredLabel(Store& store, WidgetId id);
    [[nodiscard]] String caption() const override;
    void setCaption(const String& text) override;
    void setColour(Colour text) override;
};

class StoredShape final : public StoredKind<Widgets::Shape, ShapeState> {
public:
    StoredShape(Store& store, WidgetId id);
    [[nodiscard]] Widgets::FillStyle fillStyle() const override;
    void setFillStyle(Widgets::FillStyle style) override;
};

class StoredLine final : public StoredKind<Widgets::Line, LineState> {
public:
    StoredLine(Store& store, WidgetId id);
    void setColour(Colour colour) override;
    void setVisible(Boolean visible) override;
};

using StoredButton = StoredEnableable<Widgets::Button>;

class StoredOption final : public StoredEnableable<Widgets::Option, OptionState> {
public:
    StoredOption(Store& store, WidgetId id);
    [[nodiscard]] bool value() const override;
    void setValue(bool value) override;

    void select(Widgets::Cause cause);

private:
    void clear() { change(state_.value, false); }
};

class StoredCheck final : public StoredEnableable<Widgets::Check, CheckState> {
public:
    using StoredEnableable::StoredEnableable;
    void setValue(Widgets::CheckValue value) override;

    void flip();
};

class StoredCombo final : public StoredEnableable<Widgets::Combo, ComboState> {
public:
    StoredCombo(Store& store, WidgetId id);
    void addItem(const String& text) override;
    [[nodiscard]] String text() const override;
    void setText(const String& text) override;

    [[nodiscard]] bool hasItem(StringView text) const;
    void showText(const String& text) { change(state_.text, text); }
};

class StoredList final : public StoredKind<Widgets::List, ListState> {
public:
    using StoredKind::StoredKind;
    void addItem(const String& text) override;
    void clear() override;
};

class StoredTimer final : public StoredEnableable<Widgets::Timer, TimerState> {
public:
    StoredTimer(Store& store, WidgetId id);

    void enable(bool enabled) override;
    /// Moves on to the first due time after `now`.
    void comeDue(std::chrono::milliseconds now);
};

/// The surface's border in pixels, on each side; what is inside it can be drawn on.
constexpr int kPictureBorder = 2;

class StoredPicture final : public StoredKind<Widgets::Picture, PictureState> {
public:
    using StoredKind::StoredKind;
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
    void trace(Widgets::Trace trace) override;

    /// The drawing area in pixels.
    [[nodiscard]] ORVO_OWN_EXPORT int width() const;
    [[nodiscard]] ORVO_OWN_EXPORT int height() const;

private:
    template <class Value>
    void keep(Verb verb, Value& kept, const Value& value) {
        observe(verb, value);
        kept = value;
    }
    void draw(Drawn drawn);
    void observePoint(const Widgets::Trace& trace, std::size_t i);
};

class StoredTabs final : public StoredKind<Widgets::Tabs, TabsState> {
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

class StoredDigit final : public StoredKind<Widgets::Digit, DigitState> {
public:
    using StoredKind::StoredKind;
    void setDigit(Integer digit) override;
};

class StoredSlider final : public StoredEnableable<Widgets::Slider, SliderState> {
public:
    using StoredEnableable::StoredEnableable;
    [[nodiscard]] Integer position() const override;
    void setPosition(Integer position) override;
    [[nodiscard]] Boolean buttonDown() const override;
    void setMaximum(Integer position) override;

    void hold(bool held) { change(state_.isHeld, held); }
    /// Moves as a person does, within the bounds. False when that changes nothing.
    bool moveTo(int position);
};

/// For widgets that never change: frames and images.
using StoredStill = StoredKind<Widgets::Widget>;

// clang-format off
using StoredKinds = Widgets::KindTable<
    For<Kind::label, StoredLabel>,
    For<Kind::shape, StoredShape>,
    For<Kind::line, StoredLine>,
    For<Kind::frame, StoredStill>,
    For<Kind::button, StoredButton>,
    For<Kind::option, StoredOption>,
    For<Kind::check, StoredCheck>,
    For<Kind::combo, StoredCombo>,
    For<Kind::list, StoredList>,
    For<Kind::picture, StoredPicture>,
    For<Kind::image, StoredStill>,
    For<Kind::timer, StoredTimer>,
    For<Kind::tabs, StoredTabs>,
    For<Kind::digit, StoredDigit>,
    For<Kind::slider, StoredSlider>>;
// clang-format on
static_assert(Widgets::Interfaces::kHasBasesOf<StoredKinds>);

inline void Store::changed(WidgetId widget) {
    if (screen_ != nullptr) screen_->changed(widget);
}
inline bool StoredWidget::isObserved() const { return store_.isObserved(); }
inline void StoredWidget::changed() { store_.changed(id_); }

}  // namespace Orvo::Runtime
