#include "Script/session.h"

#include <new>
#include <utility>

#include "Orvo/store/stored_widgets.h"
#include "Script/bounds.h"
#include "Script/message_log.h"
#include "Script/text_of.h"

namespace Orvo::Script {
namespace {

// How deep handlers may start one another before the script runs out of stack space.
constexpr std::size_t kDeepest = 64;

Error outOfStackSpace() { return {28, "Out of stack space"}; }

std::string failure(const Error& error) { return "! " + textOf(error); }

// Put together while there is memory.
const std::string kOutOfMemory = failure(Errors::kOutOfMemory);

bool isForNoItem(const Runtime::Deed& deed, const Runtime::Store& store) {
    return deed.verb == Runtime::Deed::Verb::pick && store.acceptsInput(deed.widget) &&
           !store.get<Runtime::StoredCombo>(deed.widget).hasItem(deed.text);
}

}  // namespace

// A command while it runs, with the first error that it left to nobody.
class Session::Frame {
public:
    explicit Frame(Session& session)
        : session_(session), outer_(std::exchange(session.frame_, this)) {}
    ~Frame() { session_.frame_ = outer_; }
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    std::optional<Error> error;  // NOLINT(*-non-private-member-variables-in-classes)

private:
    Session& session_;
    Frame* outer_;
};

// What is done in the midst of a command, one level deeper.
class Session::Midst {
public:
    explicit Midst(Session& session) : session_(session) {
        if (session_.depth_++ == 0) session_.startAnswer();
    }
    ~Midst() { --session_.depth_; }
    Midst(const Midst&) = delete;
    Midst& operator=(const Midst&) = delete;

private:
    Session& session_;
};

Session::Session(PanelOwner& owner, Person* person, Supervisor* supervisor, const Grammar& grammar,
                 Output output, UnawaitedErrors errors)
    : owner_(owner),
      person_(person),
      supervisor_(supervisor),
      grammar_(grammar),
      output_(std::move(output)),
      errors_(errors),
      renewals_(owner.onRenewed([this] { connect(); })) {
    connect();
}

Session::Session(PanelOwner& owner, Person& person, const Grammar& grammar, Output output,
                 UnawaitedErrors errors)
    : Session(owner, &person, nullptr, grammar, std::move(output), errors) {}

Session::Session(PanelOwner& owner, Supervisor& supervisor, const Grammar& grammar, Output output)
    : Session(owner, nullptr, &supervisor, grammar, std::move(output),
              UnawaitedErrors::areTheOwners) {}

Session::~Session() {
    if (person_ != nullptr) person_->store().promptWith(prompterBefore_);
    if (errors_ == UnawaitedErrors::closeTheCommand) owner_.panel().setErrorHandler({});
}

void Session::connect() {
    MarvaneAssistant& panel = owner_.panel();
    if (errors_ == UnawaitedErrors::closeTheCommand) {
        panel.setErrorHandler([this](const Error& error) { failed(error); });
    }
    events_ = panel.connect([this](Long dispatchId, std::span<Value> arguments) {
        raised(eventWith(dispatchId), arguments);
    });
    if (person_ != nullptr) {
        prompterBefore_ = person_->store().prompter();
        person_->store().promptWith(this);
    }
}

std::optional<Misunderstood> Session::run(std::string_view text) {
    firstComplaint_.reset();
    try {
        const auto words = isTrusted() ? split(text) : split(text, kMostWords);
        if (!words.empty()) perform(parse(words, grammar_));
    } catch (const Misunderstood& misunderstood) {
        line(complaint(misunderstood));
    } catch (const std::bad_alloc&) {
        if (!isHeard()) return Misunderstood{Errors::kOutOfMemory.description()};
        output_(kOutOfMemory);
    }
    return std::exchange(firstComplaint_, std::nullopt);
}

void Session::row(std::string_view text) const { line("- " + std::string(text)); }

void Session::permit(const Call& call) const {
    if (supervisor_ != nullptr) supervisor_->permit(call);
    if (isTrusted()) return;
    if (const std::size_t logged = bytesLogged(call)) expectRoomFor(logged);
}

void Session::expectRoomFor(std::size_t bytes) const {
    const std::size_t elsewhere = supervisor_ != nullptr ? supervisor_->keptElsewhere() : 0;
    const std::size_t logged = isTrusted() ? 0 : bytesOfLog(owner_.store());
    if (kept_ + elsewhere + logged + bytes <= kMostKept) return;
    if (!isHeard()) throw Misunderstood{"there is no room to keep this"};
    throw Errors::outOfMemory();
}

void Session::remember(const Event& event, ParsedCommand command) {
    const std::size_t size = command.size;
    expectRoomFor(size);
    handlersOf(event).push_back(std::make_shared<Handler>(Handler{std::move(command)}));
    kept_ += size;
}

void Session::forget(const Event& event) {
    for (const auto& handler : handlersOf(event)) {
        handler->isForgotten = true;
        kept_ -= handler->command.size;
    }
    handlersOf(event).clear();
}

void Session::forgetHandlers() {
    for (const Event& event : kEvents) forget(event);
}

void Session::perform(const Runtime::Deed& deed) const {
    if (isForNoItem(deed, person().store())) {
        throw Misunderstood{"the list has no item " + textOf(StringView(deed.text))};
    }
    person().perform(deed);
}

void Session::renew() {
    owner_.renew();
    forgetHandlers();
    queue_.clear();
    kept_ = 0;
}

void Session::queueAnswer(std::optional<String> answer) {
    const std::size_t size = bytesToKeep(answer ? answer->size() : 0);
    queue(Answer{std::move(answer)}, size);
}

void Session::queueCommand(ParsedCommand command) {
    const std::size_t size = command.size;
    queue(std::move(command), size);
}

void Session::queueResumption() { queue(Resumption{}, bytesToKeep(0)); }

void Session::queue(Step step, std::size_t size) {
    expectRoomFor(size);
    queue_.push_back({std::move(step), size});
    kept_ += size;
}

void Session::startAnswer() {
    isExhausted_ = false;
    if (person_ != nullptr) person_->startMidst();
    if (supervisor_ != nullptr) end_ = supervisor_->now() + kLongestAnswer;
}

void Session::raised(const Event& event, std::span<const Value> arguments) {
    if (isHeard()) line(eventText(event, arguments));
    const Midst midst(*this);
    handle(Handlers(handlersOf(event)));
    performQueued();
    takeQueued<Resumption>();
}

void Session::handle(const Handlers& handlers) {
    for (const auto& handler : handlers) {
        if (!handler->isForgotten && !isExhausted_ && hasTime()) perform(handler->command);
    }
}

template <class What>
std::optional<What> Session::takeQueued() {
    if (queue_.empty() || !std::holds_alternative<What>(queue_.front().step)) return std::nullopt;
    auto taken = std::get<What>(std::move(queue_.front().step));
    kept_ -= queue_.front().size;
    queue_.pop_front();
    return taken;
}

void Session::performQueued() {
    while (const auto command = takeQueued<ParsedCommand>()) {
        if (!hasTime()) return;
        perform(*command);
    }
}

void Session::failed(const Error& error) {
    if (frame_ != nullptr && !frame_->error) frame_->error = error;
}

std::optional<String> Session::ask(const Widgets::Question& question) {
    std::optional<String> answer = queuedAnswer();
    if (!isHeard()) return answer;
    const std::string typed = answer ? textOf(StringView(*answer)) : "cancel";
    line("prompt " + textOf(StringView(question.text)) + ' ' + textOf(StringView(question.title)) +
         " -> " + typed);
    return answer;
}

// What ends nothing but an event's part of the queue is passed over.
std::optional<String> Session::queuedAnswer() {
    const Midst midst(*this);
    do {
        performQueued();
    } while (takeQueued<Resumption>());
    const auto answer = takeQueued<Answer>();
    return answer ? answer->text : std::nullopt;
}

std::optional<Error> Session::exhaustion() const {
    if (depth_ > kDeepest) return outOfStackSpace();
    const bool isLate = depth_ > 0 && supervisor_ != nullptr && supervisor_->now() > end_;
    return isLate ? std::optional(Errors::interrupted()) : std::nullopt;
}

void Session::perform(const ParsedCommand& command) {
    const auto error = exhaustion();
    isExhausted_ = isExhausted_ || error;
    line(error ? failure(*error) : closingLine(command));
}

std::string Session::closingLine(const ParsedCommand& command) {
    Frame frame(*this);
    try {
        // There may have been no memory for it when the panel was fresh.
        if (!events_.isConnected()) connect();
        std::string closing = command.carryOut(*this);
        return frame.error ? failure(*frame.error) : closing;
    } catch (const Error& error) {
        return failure(error);
    } catch (const Misunderstood& misunderstood) {
        return complaint(misunderstood);
    }
}

std::string Session::complaint(const Misunderstood& misunderstood) {
    if (!firstComplaint_) firstComplaint_ = misunderstood;
    return "? " + misunderstood.text;
}

void Session::line(std::string_view text) const {
    if (!isHeard()) return;
    if (depth_ == 0) return output_(text);
    output_(std::string(2 * depth_, ' ').append(text));
}

Session::Handlers& Session::handlersOf(const Event& event) {
    return handlers_[static_cast<std::size_t>(&event - kEvents.data())];
}

}  // namespace Orvo::Script
