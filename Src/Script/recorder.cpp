#include "Script/recorder.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <variant>

#include "Orvo/layout/roles.h"
#include "Orvo/store/stored_widgets.h"
#include "Orvo/store/user_input.h"
#include "Script/command.h"
#include "Script/present_state.h"
#include "Script/text_of.h"

namespace Orvo::Script {
namespace {

constexpr std::string_view kHeading =
    "# A recorded session: panel script that repeats it.\nchronological\n";
// The longest that the language waits in one go.
constexpr std::chrono::milliseconds kLongestWait{std::numeric_limits<Long>::max()};

// Texts come from nowhere but the prompts.
bool isText(const Value& value) { return std::holds_alternative<String>(value); }

}  // namespace

Recorder::Recorder(PanelOwner& owner, Answers answers)
    : owner_(owner),
      answers_(answers),
      renewals_(owner.onRenewed([this] { hearFreshPanel(); }, [this] { panelEnds(); })) {
    hear();
}

Recorder::~Recorder() {
    stop();
    store().input().observeWith(nullptr);
}

void Recorder::start(RecordFile file) {
    if (!events_.isConnected()) hear();
    const Boolean readOnly = owner_.panel().ReadOnly();
    file.append(std::string(kHeading) + presentState(store(), readOnly));
    time_ = store().now();
    ongoing_.clear();
    resumptions_ = 0;
    file_.emplace(std::move(file));
}

void Recorder::stop() {
    writeWait();
    file_.reset();
}

void Recorder::hear() {
    time_ = store().now();
    store().input().observeWith(this);
    calls_ = owner_.panel().listen(*this);
    events_ = owner_.panel().connect([this](Long dispatchId, std::span<Value> arguments) {
        note([&] { raised(eventWith(dispatchId), arguments); });
    });
}

void Recorder::hearFreshPanel() {
    try {
        hear();
    } catch (...) {
        if (file_) file_->lose();
    }
}

void Recorder::panelEnds() {
    store().input().observeWith(nullptr);
    note([this] {
        wait();
        write("new");
    });
    ongoing_.clear();
    resumptions_ = 0;
}

void Recorder::pointerIsSet() {
    note([this] {
        wait();
        write("pointer " + std::to_string(static_cast<Integer>(store().pointer())));
    });
}

void Recorder::called(const Member& member, std::span<const Value> arguments) {
    note([&] { begin(commandText(member, arguments)); });
}

void Recorder::returned(const Member& /*member*/, const Value& /*result*/) { end(); }

void Recorder::failed(const Member& /*member*/, const Error& error) {
    note([&] { file_->append("# ! " + textOf(error) + '\n'); });
    end();
}

void Recorder::does(const Runtime::Deed& deed) {
    const bool isMove = deed.verb == Runtime::Deed::Verb::move;
    note([&] { begin(commandText(deed), isMove ? std::optional(deed.widget) : std::nullopt); });
}

void Recorder::did() {
    if (ongoing_.empty()) return;
    const Ongoing deed = ongoing_.back();
    end();
    // The language moves a slider and lets go of it in one.
    const auto& slider = deed.movedSlider;
    if (slider && store().get<Runtime::StoredSlider>(*slider).state().isHeld) {
        note([&] { write(commandText({.verb = Runtime::Deed::Verb::hold, .widget = *slider})); });
    }
    if (deed.state == State::over) note([this] { writeWhatASecretLeft(); });
}

// Who knows the password has the hourglass at the end, and the button that starts it all enabled,
// even if only watching has begun meanwhile. The replay, which knows no answer, has neither.
void Recorder::writeWhatASecretLeft() {
    if (store().pointer() == Widgets::Pointer::hourglass) pointerIsSet();
    const auto button = Layout::kCommon.resetLogButton;
    const std::string_view name = Layout::describe(button).name;
    const std::string_view isEnabled = textOf(store().widget(button).isEnabled());
    write(std::string("set ").append(name).append(" enabled ").append(isEnabled));
}

void Recorder::answered(const std::optional<String>& answer) {
    if (ongoing_.empty() || ongoing_.back().state == State::over) return;
    const bool isTold = answer && answers_ == Answers::inFull;
    note([&] {
        wait();
        file_->append("answer " + (isTold ? textOf(StringView(*answer)) : "cancel") + '\n');
    });
    // No event takes what stands behind an answer that it hasn't got.
    resumptions_ = 0;
    ongoing_.back().state = answer && !isTold ? State::over : State::running;
}

void Recorder::raised(const Event& event, std::span<const Value> arguments) {
    pause();
    const bool isSecret =
        answers_ == Answers::asCancelled && std::any_of(arguments.begin(), arguments.end(), isText);
    const auto told = isSecret ? std::span<const Value>() : arguments;
    file_->append("# " + eventText(event, told) + (isSecret ? " …\n" : "\n"));
}

void Recorder::begin(std::string_view command, std::optional<Widgets::WidgetId> movedSlider) {
    wait();
    write(command);
    ongoing_.push_back({.movedSlider = movedSlider});
}

void Recorder::end() {
    if (ongoing_.empty()) return;
    if (ongoing_.back().state == State::stopped) ++resumptions_;
    ongoing_.pop_back();
}

// At an event or a prompt; what it was stopped at before is done with.
void Recorder::pause() {
    wait();
    if (ongoing_.empty() || ongoing_.back().state == State::over) return;
    if (std::exchange(ongoing_.back().state, State::stopped) == State::stopped) ++resumptions_;
}

bool Recorder::isInTheMidst() const {
    return std::any_of(ongoing_.begin(), ongoing_.end(), [](const Ongoing& ongoing) {
        return ongoing.state == State::running || ongoing.state == State::stopped;
    });
}

void Recorder::write(std::string_view command) {
    std::string lines;
    if (isInTheMidst()) {
        for (; resumptions_ > 0; --resumptions_) lines += "resume\n";
        lines += "meanwhile ";
    }
    resumptions_ = 0;
    file_->append(lines.append(command) += '\n');
}

void Recorder::writeWait() {
    note([this] { wait(); });
}

void Recorder::wait() {
    auto time = store().now() - std::exchange(time_, store().now());
    while (time.count() > 0) {
        const auto wait = std::min(time, kLongestWait);
        write("wait " + std::to_string(wait.count()));
        time -= wait;
    }
}

}  // namespace Orvo::Script
