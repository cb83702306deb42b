#include "Manager/Recording/recorder.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <variant>
#include <vector>

#include "Console/text_of.h"
#include "Manager/Recording/deed_text.h"

namespace Orvo::Manager {
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
    file_.write(kHeading);
    panelBegins(panel, store);
}

Recorder::~Recorder() {
    store_->input().observeWith(nullptr);
    writeWait();
    file_.write(given_ + pending_);
}

void Recorder::panelEnds() {
    write("new\n");
    store_->input().observeWith(nullptr);
    file_.write(std::exchange(given_, {}) + std::exchange(pending_, {}));
    deeds_ = 0;
}

void Recorder::panelBegins(MarvaneAssistant& panel, Runtime::Store& store) {
    store_ = &store;
    time_ = store.now();
    store.input().observeWith(this);
    events_ = panel.connect([this](Long dispatchId, std::span<Value> arguments) {
        raised(eventWith(dispatchId), arguments);
    });
}

void Recorder::called(const Member& member, std::span<const Value> arguments) {
    write(Console::commandText(member, arguments) + '\n');
}

void Recorder::failed(const Member&, const Error& error) {
    write("# ! " + Console::textOf(error) + '\n');
}

void Recorder::does(const Runtime::Deed& deed) {
    writeWait();
    ++deeds_;
    put(deedText(deed, *store_));
}

void Recorder::did() {
    if (deeds_ == 0 || --deeds_ > 0) return;
    file_.write(std::exchange(given_, {}) + std::exchange(pending_, {}));
}

void Recorder::answered(const std::optional<String>& answer) {
    const bool isTold = answer && answers_ == Answers::inFull;
    given_ += "answer " + (isTold ? Console::textOf(StringView(*answer)) : "cancel") + '\n';
}

void Recorder::raised(const Event& event, std::span<const Value> arguments) {
    const bool isSecret =
        answers_ == Answers::asCancelled && std::any_of(arguments.begin(), arguments.end(), isText);
    const auto told = isSecret ? std::span<const Value>() : arguments;
    write("# " + Console::eventText(event, told) + (isSecret ? " …\n" : "\n"));
}

void Recorder::write(std::string_view line) {
    writeWait();
    put(line);
}

void Recorder::writeWait() {
    auto time = store_->now() - std::exchange(time_, store_->now());
    while (time.count() > 0) {
        const auto wait = std::min(time, kLongestWait);
        put("wait " + std::to_string(wait.count()) + '\n');
        time -= wait;
    }
}

void Recorder::put(std::string_view line) {
    if (deeds_ > 0) {
        pending_ += line;
    } else {
        file_.write(line);
    }
}

}  // namespace Orvo::Manager
