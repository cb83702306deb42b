#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "Script/bench.h"
#include "Script/command.h"

namespace Orvo::Script {

/// Carries out panel script on a bench, one line after the other, and hands out the lines of the
/// answers as they arise, without line breaks.
class Session final : public PanelListener {
public:
    using Output = std::function<void(std::string_view line)>;

    /// The session hears of the panel for as long as it lives.
    Session(Bench& bench, const Grammar& grammar, Output output);
    ~Session() override { bench_.tell(nullptr); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Answers one line. What was not understood of it, if anything, in a handler too.
    std::optional<Misunderstood> run(std::string_view text);
    [[nodiscard]] bool hasQuit() const { return hasQuit_; }

    // What the commands work with.

    [[nodiscard]] Bench& bench() const { return bench_; }
    /// One row of a listing.
    void row(std::string_view text);
    void remember(const Event& event, Action action);
    void forget(const Event& event);
    /// What the person does at the next prompt that has no answer yet.
    void queueAnswer(std::optional<String> answer) {
        queue_.emplace_back(Answer{std::move(answer)});
    }
    /// What is done in the midst of a command, when the panel next raises an event or opens a
    /// prompt; and where that ends for an event.
    void queueAction(Action action) { queue_.emplace_back(std::move(action)); }
    void queueResumption() { queue_.emplace_back(Resumption{}); }
    void renew();
    void quit() { hasQuit_ = true; }

    void raised(const Event& event, std::span<const Value> arguments) override;
    void failed(const Error& error) override;
    std::optional<String> asked(const Widgets::Question& question) override;

private:
    class Frame;
    class Midst;

    // What the host does when an event is raised, until it is forgotten.
    struct Handler {
        Action action;
        bool isForgotten = false;
    };
    using Handlers = std::vector<std::shared_ptr<Handler>>;

    struct Answer {
        std::optional<String> text;
    };
    struct Resumption {};
    using Queued = std::variant<Answer, Action, Resumption>;

    void handle(const Handlers& handlers);
    void performQueued();
    std::optional<String> queuedAnswer();
    template <class What>
    std::optional<What> takeQueued();

    void perform(const Action& action);
    std::string closingLine(const Action& action);
    std::string complaint(const Misunderstood& misunderstood);
    void line(std::string_view text);
    Handlers& handlersOf(const Event& event);

    Bench& bench_;
    Grammar grammar_;
    Output output_;
    std::array<Handlers, kEvents.size()> handlers_;
    std::deque<Queued> queue_;
    Frame* frame_ = nullptr;
    std::size_t depth_ = 0;
    bool isExhausted_ = false;
    bool hasQuit_ = false;
    std::optional<Misunderstood> firstComplaint_;
};

}  // namespace Orvo::Script
