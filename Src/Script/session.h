#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "Orvo/core/event_table.h"
#include "Script/command.h"
#include "Script/panel_owner.h"
#include "Script/person.h"
#include "Script/supervisor.h"

namespace Orvo::Script {

/// What becomes of the panel's errors that nobody waits for.
enum class UnawaitedErrors : std::uint8_t { closeTheCommand, areTheOwners };

/// Carries out panel script on a panel, one line after the other, and hands out the lines of the
/// answers as they arise, without line breaks.
class Session final : private Runtime::Prompter {
public:
    /// For how long handlers may answer one event, under supervision; what is left of them then
    /// closes with error 18.
    static constexpr std::chrono::milliseconds kLongestAnswer{25};

    /// Without one nobody hears the answers, which aren't composed then.
    using Output = std::function<void(std::string_view line)>;

    /// Plays both sides of the panel for as long as it lives: prompts are its own to answer.
    Session(PanelOwner& owner, Person& person, const Grammar& grammar, Output output,
            UnawaitedErrors errors = UnawaitedErrors::closeTheCommand);
    /// Plays the host alone, with a grammar that knows no other side. Prompts and errors stay with
    /// the panel's owner.
    Session(PanelOwner& owner, Supervisor& supervisor, const Grammar& grammar, Output output);
    ~Session() override;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Answers one line. What was not understood of it, if anything, in a handler too.
    std::optional<Misunderstood> run(std::string_view text);
    [[nodiscard]] bool hasQuit() const { return hasQuit_; }
    /// Whether an event or a prompt is being handled.
    [[nodiscard]] bool isInTheMidst() const { return depth_ > 0; }

    // What the commands work with.

    [[nodiscard]] PanelOwner& owner() const { return owner_; }
    [[nodiscard]] Person& person() const { return *person_; }
    [[nodiscard]] bool isHeard() const { return output_ != nullptr; }
    /// One row of a listing.
    void row(std::string_view text) const;
    void permit(const Call& call) const;
    /// Throws error 7 when so many bytes more would be above `kMostKept`; Misunderstood, when
    /// nobody hears of errors.
    void expectRoomFor(std::size_t bytes) const;
    void remember(const Event& event, ParsedCommand command);
    void forget(const Event& event);
    /// Of all events.
    void forgetHandlers();
    /// What the person does at the next prompt that has no answer yet.
    void queueAnswer(std::optional<String> answer);
    /// What is done in the midst of a command, when the panel next raises an event or opens a
    /// prompt; and where that ends for an event.
    void queueCommand(ParsedCommand command);
    void queueResumption();
    /// What is queued is for the command above it; whoever hands out the lines sees to that.
    void becomeChronological() { isChronological_ = true; }
    [[nodiscard]] bool isChronological() const { return isChronological_; }
    /// What the person does. Throws Misunderstood when it is for an item that isn't in the list.
    void perform(const Runtime::Deed& deed) const;
    void renew();
    void quit() { hasQuit_ = true; }

private:
    class Frame;
    class Midst;

    // What the host does when an event is raised, until it is forgotten.
    struct Handler {
        ParsedCommand command;
        bool isForgotten = false;
    };
    using Handlers = std::vector<std::shared_ptr<Handler>>;

    struct Answer {
        std::optional<String> text;
    };
    struct Resumption {};
    using Step = std::variant<Answer, ParsedCommand, Resumption>;
    struct Queued {
        Step step;
        std::size_t size;  // in bytes
    };

    Session(PanelOwner& owner, Person* person, Supervisor* supervisor, const Grammar& grammar,
            Output output, UnawaitedErrors errors);
    [[nodiscard]] bool isTrusted() const { return grammar_.speaker == Grammar::Speaker::anyone; }
    void connect();
    void startAnswer();
    void raised(const Event& event, std::span<const Value> arguments);
    void failed(const Error& error);
    std::optional<String> ask(const Widgets::Question& question) override;

    void handle(const Handlers& handlers);
    bool hasTime() { return person_ == nullptr || person_->hasTime(); }
    void queue(Step step, std::size_t size);
    void performQueued();
    std::optional<String> queuedAnswer();
    template <class What>
    std::optional<What> takeQueued();

    [[nodiscard]] std::optional<Error> exhaustion() const;
    void perform(const ParsedCommand& command);
    std::string closingLine(const ParsedCommand& command);
    std::string complaint(const Misunderstood& misunderstood);
    void line(std::string_view text) const;
    Handlers& handlersOf(const Event& event);

    PanelOwner& owner_;
    // One of the two.
    Person* const person_;
    Supervisor* const supervisor_;
    const Grammar grammar_;
    const Output output_;
    const UnawaitedErrors errors_;
    Runtime::Prompter* prompterBefore_ = nullptr;
    std::array<Handlers, kEvents.size()> handlers_;
    std::size_t kept_ = 0;  // bytes of handlers and of what is queued
    std::deque<Queued> queue_;
    Frame* frame_ = nullptr;
    std::size_t depth_ = 0;
    bool isExhausted_ = false;
    std::chrono::steady_clock::time_point end_;  // of the answer to an event
    bool isChronological_ = false;
    bool hasQuit_ = false;
    std::optional<Misunderstood> firstComplaint_;
    Connection renewals_;
    Connection events_;
};

}  // namespace Orvo::Script
