#include "Script/recorder.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <variant>

#include "Script/deed_text.h"
#include "Script/text_of.h"

namespace Orvo::Script {
namespace {

constexpr std::string_view kHeading = "# A recorded session: panel script that repeats it.\n";
// The longest that the language waits in one go.
constexpr std::chrono::milliseconds kLongestWait{std::numeric_limits<Long>::max()};

// Texts come from nowhere but the prompts.
bool isText(const Value& value) { return std::holds_alternative<String>(value); }

}  // namespace

Recorder::Recorder(const std::string& file, MarvaneAssistant& panel, Runtime::Store& store,
                   Answers answers)
    : file_(file), answers_(answers) {
    file_.begin(kHeading);
    panelBegins(panel, store);
}

Recorder::~Recorder() {
    store_->input().observeWith(nullptr);
    writeWait();
}

void Recorder::panelEnds() {
    writeWait();
    write("new");
    store_->input().observeWith(nullptr);
    actions_.clear();
    resumptions_ = 0;
}

void Recorder::panelBegins(MarvaneAssistant& panel, Runtime::Store& store) {
    store_ = &store;
    time_ = store.now();
    store.input().observeWith(this);
    events_ = panel.connect([this](Long dispatchId, std::span<Value> arguments) {
        raised(eventWith(dispatchId), arguments);
    });
}

void Recorder::pointerIsSet() {
    writeWait();
    write("pointer " + std::to_string(static_cast<Integer>(store_->pointer())));
}

void Recorder::called(const Member& member, std::span<const Value> arguments) {
    begin(commandText(member, arguments));
}

void Recorder::returned(const Member& /*member*/, const Value& /*result*/) { end(); }

void Recorder::failed(const Member& /*member*/, const Error& error) {
    file_.putBehind("# ! " + textOf(error) + '\n');
    end();
}

void Recorder::does(const Runtime::Deed& deed) {
    const bool isMove = deed.verb == Runtime::Deed::Verb::move;
    begin(deedText(deed), isMove ? std::optional(deed.widget) : std::nullopt);
}

void Recorder::did() {
    if (actions_.empty()) return;
    const Action deed = actions_.back();
    end();
    // The language moves a slider and lets go of it in one.
    const auto& slider = deed.movedSlider;
    if (slider && store_->get<Runtime::StoredSlider>(*slider).state().isHeld) {
        write(deedText({.verb = Runtime::Deed::Verb::hold, .widget = *slider}));
    }
    if (deed.isOver && store_->pointer() == Widgets::Pointer::hourglass) pointerIsSet();
}

void Recorder::answered(const std::optional<String>& answer) {
    if (actions_.empty() || actions_.back().isOver) return;
    const bool isTold = answer && answers_ == Answers::inFull;
    writeWait();
    file_.putBefore("answer " + (isTold ? textOf(StringView(*answer)) : "cancel") + '\n');
    // No event takes what stands behind an answer that it hasn't got.
    resumptions_ = 0;
    actions_.back().hasStopped = false;
    actions_.back().isOver = answer && !isTold;
}

void Recorder::raised(const Event& event, std::span<const Value> arguments) {
    stop();
    const bool isSecret =
        answers_ == Answers::asCancelled && std::any_of(arguments.begin(), arguments.end(), isText);
    const auto told = isSecret ? std::span<const Value>() : arguments;
    file_.putBehind("# " + eventText(event, told) + (isSecret ? " …\n" : "\n"));
}

void Recorder::begin(std::string_view command, std::optional<Widgets::WidgetId> movedSlider) {
    writeWait();
    write(command);
    actions_.push_back({.movedSlider = movedSlider});
}

void Recorder::end() {
    if (actions_.empty()) return;
    if (actions_.back().hasStopped) ++resumptions_;
    actions_.pop_back();
}

void Recorder::stop() {
    writeWait();
    if (actions_.empty()) return;
    Action& action = actions_.back();
    action.isWritten = true;
    if (!action.isOver && std::exchange(action.hasStopped, true)) ++resumptions_;
}

// The first tick after a wait comes of that; what follows it at once does, too.
bool Recorder::isInTheMidst() const {
    return std::any_of(actions_.begin(), actions_.end(),
                       [](const Action& action) { return action.isWritten && !action.isOver; });
}

void Recorder::write(std::string_view command) {
    const std::string line = std::string(command) + '\n';
    if (!isInTheMidst()) {
        resumptions_ = 0;
        return file_.begin(line);
    }
    std::string resumptions;
    for (; resumptions_ > 0; --resumptions_) resumptions += "resume\n";
    file_.putBefore(resumptions + "meanwhile " + line);
}

void Recorder::writeWait() {
    auto time = store_->now() - std::exchange(time_, store_->now());
    while (time.count() > 0) {
        const auto wait = std::min(time, kLongestWait);
        write("wait " + std::to_string(wait.count()));
        time -= wait;
    }
}

}  // namespace Orvo::Script
