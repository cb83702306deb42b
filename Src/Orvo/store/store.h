#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include "Orvo/export.h"
#include "Orvo/store/deed.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo::Runtime {

using Widgets::WidgetId;

class OperationObserver;
class Screen;
class StoredTimer;
class StoredWidget;
class UserInput;
struct Operation;

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
class ORVO_EXPORT Store final : public Widgets::WidgetTree,
                                Widgets::MousePointer,
                                Widgets::InputPrompt,
                                public std::enable_shared_from_this<Store> {
public:
    using Milliseconds = std::chrono::milliseconds;

    /// Error 7 when memory runs out.
    static std::shared_ptr<Store> create();
    ~Store() override;
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    Widgets::MousePointer& mousePointer() override { return *this; }
    Widgets::InputPrompt& inputPrompt() override { return *this; }
    void notifyTo(Widgets::NotificationSink* sink) override { sink_ = sink; }

    /// What a person does. A widget that is hidden or disabled, by itself or through what contains
    /// it, ignores it; which tab is in front doesn't matter. A slider goes no further than its
    /// bounds, and a move that changes the position notifies. False when nothing comes of it: the
    /// widget ignores it or is of another kind, an item is not in the list, a tab is disabled, a
    /// slider is there already or not held, the panel discards the key, or there is no memory for
    /// it, which is told to the panel's error handler.
    bool perform(const Deed& deed);

    /// Whether the widget shows, and takes input, with everything that contains it. A tab that is
    /// behind another one shows in this sense; what is on a disabled tab takes no input.
    [[nodiscard]] bool isShown(WidgetId id) const;
    [[nodiscard]] bool acceptsInput(WidgetId id) const;

    /// Who answers prompts from now on; null: they are cancelled.
    void promptWith(Prompter* prompter) { prompter_ = prompter; }
    [[nodiscard]] Prompter* prompter() const { return prompter_; }

    [[nodiscard]] Widgets::Pointer pointer() const { return pointer_; }

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

    // The rest is this project's own: headers that are not public say what it works with.

    /// A person's input as it comes from a screen.
    UserInput& input();
    /// Null takes them away again.
    void showOn(Screen* screen) { screen_ = screen; }
    void observeWith(OperationObserver* observer) { observer_ = observer; }

    [[nodiscard]] const StoredWidget& widget(WidgetId id) const { return stored(id); }
    /// The same; `Stored` is the stored class of its kind.
    template <class Stored>
    [[nodiscard]] const Stored& get(WidgetId id) const {
        return at<Stored>(id);
    }

    /// Changes the layout under the panel's feet.
    void show(WidgetId id, bool visible);
    void enable(WidgetId id, bool enabled);

private:
    friend class StoredWidget;
    friend class StoredOption;
    friend class StoredPicture;
    friend class StoredTabs;
    friend class UserInput;
    struct Parts;

    Store();

    Widgets::Widget& at(WidgetId id) override;
    template <class Stored>
    [[nodiscard]] Stored& at(WidgetId id) const {
        return static_cast<Stored&>(stored(id));
    }
    [[nodiscard]] StoredWidget& stored(WidgetId id) const;
    void setPointer(Widgets::Pointer pointer) override;
    String ask(const Widgets::Question& question) override;

    [[nodiscard]] bool isObserved() const { return observer_ != nullptr; }
    void observe(const Operation& operation) const;
    inline void changed(WidgetId widget);
    /// The notification as its handler left it.
    Widgets::Notification notify(Widgets::Notification notification);
    /// What a person did ended with an error that the panel has not seen.
    void failed(const Error& error);
    [[nodiscard]] StoredTimer* nextTimer() const;
    void tick(const StoredTimer& timer);
    /// Of those that a person holds and that take no input any more.
    void letGoOfSliders();

    std::unique_ptr<Parts> parts_;
    Widgets::NotificationSink* sink_ = nullptr;
    Screen* screen_ = nullptr;
    Prompter* prompter_ = nullptr;
    OperationObserver* observer_ = nullptr;
    Widgets::Pointer pointer_ = Widgets::Pointer::standard;
    Milliseconds now_{0};
    std::function<Milliseconds()> sinceCatchUp_;
};

}  // namespace Orvo::Runtime
