#include <algorithm>
#include <array>
#include <string>

#include "Fuzz/fuzz.h"
#include "Fuzz/hurried_panel.h"
#include "Script/recorder.h"
#include "Script/recordings.h"
#include "Support/temporary_directory.h"

// A session is recorded, from its start or from its middle on, the recording is replayed and
// recorded in turn. A recording is understood to its end, leaves the panel as the session did, and,
// when it holds the answers, has the same events and prompts in the same places; from the start on
// it is recorded as what it is. One that breaks off anywhere is understood as well.
namespace Orvo::Fuzz {
namespace {

struct Course {
    std::string before;
    std::string answers;
    std::string recording;
    std::string state;
};

template <class Panel>
Course recorded(const std::string& script, Script::Answers answers,
                const std::string& before = {}) {
    static const Tests::TemporaryDirectory kDirectory;
    const std::string file = kDirectory.path() / "session.txt";
    Panel panel;
    Course course;
    {
        Script::Recorder recorder(panel, answers);
        if (!before.empty()) course.before = Tests::answersOn(panel, before);
        recorder.start(Script::RecordFile(file, Script::Existing::overwritten));
        course.answers = Tests::answersOn(panel, script);
    }
    course.recording = Tests::textIn(file);
    course.state = Tests::stateOf(panel);
    return course;
}

/// Without what is done to the panel from elsewhere than host and person, which isn't recorded.
std::string recordable(std::string_view input) {
    std::string script;
    forLines(input, [&](std::string_view line) {
        const bool isLeftOut = std::ranges::any_of(
            std::to_array<std::string_view>({"set", "spooler", "pointer", "quit"}),
            [&](auto word) { return line.find(word) != std::string_view::npos; });
        if (!isLeftOut) script.append(line) += '\n';
    });
    return script;
}

/// The events and prompts, each as deep in the midst of others as it was.
std::string told(const std::string& answers) {
    std::string told;
    forLines(answers, [&](std::string_view line) {
        const auto word = line.substr(std::min(line.find_first_not_of(' '), line.size()));
        const bool isTold = word.starts_with("event ") || word.starts_with("prompt ");
        if (isTold) told.append(line) += '\n';
    });
    return told;
}

/// Behind the line that its middle is in.
std::size_t middleOf(const std::string& text) {
    return std::min(text.find('\n', text.size() / 2), text.size() - 1) + 1;
}

bool isUnderstood(const std::string& answers) {
    return ("\n" + answers).find("\n? ") == std::string::npos;
}

void recordFromTheMiddle(const std::string& script) {
    const auto middle = middleOf(script);
    const auto answers = Script::Answers::inFull;
    const Course session =
        recorded<HurriedPanel>(script.substr(middle), answers, script.substr(0, middle));
    // What fails half-way leaves what nothing else leads to.
    const bool isReached = session.before.find("! ") == std::string::npos;
    if (session.recording.find("\n# not brought here") != std::string::npos)
        return expect(!isReached, "what isn't reached", session.recording);
    const Course replay = recorded<Script::StorePanel>(session.recording, answers);
    const bool hasItsEvents = Tests::eventsIn(replay.answers) == Tests::eventsIn(session.recording);
    expect(isUnderstood(replay.answers) && replay.state == session.state && hasItsEvents,
           "a recording that has not begun where the session was", session.recording);
}

void breakOff(const std::string& recording) {
    const std::string begun = recording.substr(0, middleOf(recording));
    Script::StorePanel panel;
    const std::string answers = Tests::answersOn(panel, begun);
    const auto events = Tests::eventsIn(begun);
    const auto repeated = Tests::eventsIn(answers);
    const bool isBegun = std::ranges::mismatch(events, repeated).in1 == events.end();
    expect(isUnderstood(answers) && isBegun, "what is recorded first isn't first", begun);
}

}  // namespace

void attackRecording(std::string_view input) {
    const auto answers =
        input.size() % 2 == 0 ? Script::Answers::inFull : Script::Answers::asCancelled;
    const std::string script = recordable(input);
    const Course session = recorded<HurriedPanel>(script, answers);
    const Course replay = recorded<Script::StorePanel>(session.recording, answers);
    const auto check = [&](bool holds, auto complaint) {
        expect(holds, complaint, session.recording);
    };
    check(isUnderstood(replay.answers), "a recording that isn't understood");
    check(replay.state == session.state, "a replay with another end");
    if (!script.empty()) recordFromTheMiddle(script);
    if (answers == Script::Answers::asCancelled) return;
    check(told(replay.answers) == told(session.answers), "a replay with other events or prompts");
    check(replay.recording == session.recording, "a replay that is another session");
    breakOff(session.recording);
}

}  // namespace Orvo::Fuzz
