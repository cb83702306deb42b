#pragma once

#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

#include "Orvo/layout/layout.h"
#include "Orvo/store/stored_widgets.h"
#include "Orvo/store/user_input.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo::Runtime {

/// A screen that shows the store.
class Screen {
public:
    virtual ~Screen() = default;
    /// What this widget shows may have changed. Called from within the panel's writes: note it and
    /// paint later.
    virtual void changed(WidgetId widget) = 0;
    /// The mouse pointer has changed.
    virtual void pointerChanged() = 0;
};

/// Whoever sits in front of the panel and answers its prompts.
class Prompter {
public:
    virtual ~Prompter() = default;
    /// The text typed; none when the prompt is cancelled. Throws Widgets::PromptWithdrawn when it
    /// went away without either.
    virtual std::optional<String> ask(const Widgets::Question& question) = 0;
};

/// The widgets of one panel in memory: their state, and every rule about it. Without a screen it is
/// the headless runtime, with a clock that only `advance` moves.
///
/// All calls from one thread, the panel's.
class Store final : public Widgets::WidgetTree,
                    Widgets::MousePointer,
                    Widgets::InputPrompt,
                    public std::enable_shared_from_this<Store> {
public:
    using Milliseconds = std::chrono::milliseconds;

    static std::shared_ptr<Store> create();

    Widgets::MousePointer& mousePointer() override { return *this; }
    Widgets::InputPrompt& inputPrompt() override { return *this; }
    void notifyTo(Widgets::NotificationSink* sink) override { sink_ = sink; }

    /// What a screen and a person's input work with; null takes them away again.
    void showOn(Screen* screen) { screen_ = screen; }
    void promptWith(Prompter* prompter) { prompter_ = prompter; }
    [[nodiscard]] Prompter* prompter() const { return prompter_; }
    void observeWith(OperationObserver* observer) { observer_ = observer; }

    /// What a person does.
    UserInput& input() { return input_; }

    /// The state of a widget; `Stored` is the stored class of its kind.
    template <class Stored>
    [[nodiscard]] const Stored& get(WidgetId id) const {
        return static_cast<const Stored&>(*widgets_[id]);
    }
    [[nodiscard]] const StoredWidget& widget(WidgetId id) const { return *widgets_[id]; }
    /// What `use` returns for the widget as its kind's stored class.
    template <class Use>
    auto visit(WidgetId id, const Use& use) const {
        return StoredKinds::visit(Layout::kindOf(id),
                                  [&]<class Stored>(std::type_identity<Stored> /*kind*/) {
                                      return use(get<Stored>(id));
                                  });
    }
    [[nodiscard]] Widgets::Pointer pointer() const { return pointer_; }

    /// Whether the widget shows, and takes input, with everything that contains it. A tab that is
    /// behind another one shows in this sense; what is on a disabled tab takes no input.
    [[nodiscard]] bool isShown(WidgetId id) const;
    [[nodiscard]] bool acceptsInput(WidgetId id) const;

    /// Changes the layout under the panel's feet.
    void show(WidgetId id, bool visible) { widgets_[id]->show(visible); }
    void enable(WidgetId id, bool enabled) { widgets_[id]->enable(enabled); }

    /// The clock that the timers run on; 0 at creation.
    [[nodiscard]] Milliseconds now() const {
        return now_ + (sinceCatchUp_ ? sinceCatchUp_() : Milliseconds(0));
    }
    /// Makes the clock a real one, which goes on by itself: `elapsed` is the time since `catchUp`
    /// was last called. None takes it away again.
    void runOn(std::function<Milliseconds()> elapsed) { sinceCatchUp_ = std::move(elapsed); }
    /// Lets time pass: every timer that comes due ticks, in order, as often as it does.
    void advance(Milliseconds time);
    /// Lets time pass that cannot be made up for: a timer that is late ticks once.
    void catchUp(Milliseconds time);
    /// The time until the next tick, if any timer runs.
    [[nodiscard]] std::optional<Milliseconds> untilNextTick() const;

private:
    friend class StoredWidget;
    friend class StoredOption;
    friend class StoredPicture;
    friend class StoredTabs;
    friend class UserInput;

    Store();

    Widgets::Widget& at(WidgetId id) override { return *interfaces_[id]; }
    template <class Stored>
    [[nodiscard]] Stored& at(WidgetId id) const {
        return static_cast<Stored&>(*widgets_[id]);
    }
    template <class Stored>
    std::unique_ptr<StoredWidget> make(WidgetId id);
    void setPointer(Widgets::Pointer pointer) override;
    String ask(const Widgets::Question& question) override;

    [[nodiscard]] bool isObserved() const { return observer_ != nullptr; }
    void observe(const Operation& operation) const {
        if (observer_ != nullptr) observer_->before(operation);
    }
    void changed(WidgetId widget) {
        if (screen_ != nullptr) screen_->changed(widget);
    }
    /// The notification as its handler left it.
    Widgets::Notification notify(Widgets::Notification notification);
    [[nodiscard]] StoredTimer* nextTimer() const;
    void tick(const StoredTimer& timer);
    /// Of those that a person holds and that take no input any more.
    void letGoOfSliders();

    std::array<std::unique_ptr<StoredWidget>, Layout::kWidgetCount> widgets_;
    std::array<Widgets::Widget*, Layout::kWidgetCount> interfaces_{};  // of the same
    UserInput input_{*this};
    Widgets::NotificationSink* sink_ = nullptr;
    Screen* screen_ = nullptr;
    Prompter* prompter_ = nullptr;
    OperationObserver* observer_ = nullptr;
    Widgets::Pointer pointer_ = Widgets::Pointer::standard;
    Milliseconds now_{0};
    std::function<Milliseconds()> sinceCatchUp_;
};

inline bool StoredWidget::isObserved() const { return store_.isObserved(); }
inline void StoredWidget::changed() { store_.changed(id_); }

}  // namespace Orvo::Runtime
