#include <algorithm>
#include <array>
#include <string>

#include "Fuzz/fuzz.h"
#include "Fuzz/hurried_panel.h"
#include "Script/recorder.h"
#include "Script/recordings.h"
#include "Support/temporary_directory.h"

// A session is recorded, the recording is replayed and recorded in turn. A recording is understood
// to its end, leaves the panel as the session did, and, when it holds the answers, has the same
// events and prompts in the same places and is recorded as what it is.
namespace Orvo::Fuzz {
namespace {

struct Course {
    std::string answers;
    std::string recording;
    std::string state;
};

template <class Panel>
Course recorded(const std::string& script, Script::Answers answers) {
    static const Tests::TemporaryDirectory kDirectory;
    const std::string file = kDirectory.path() / "session.txt";
    Panel panel;
    Course course;
    {
        const Script::Recorder recorder(Script::RecordFile(file, Script::Existing::overwritten),
                                        panel, answers);
        course.answers = Tests::answersOn(panel, script);
    }
    course.recording = Tests::textIn(file);
    course.state = Tests::stateOf(panel);
    return course;
}

/// Without what is done to the panel from elsewhere than host and person, which isn't recorded.
std::string recordable(std::string_view input) {
    std::string script;
    for (Bytes lines(input); !lines.isAtEnd();) {
        const auto line = lines.takeUntil('\n');
        const bool isLeftOut = std::ranges::any_of(
            std::to_array<std::string_view>({"set", "spooler", "pointer", "quit"}),
            [&](auto word) { return line.find(word) != std::string_view::npos; });
        if (!isLeftOut) script.append(line) += '\n';
    }
    return script;
}

/// The events and prompts, each as deep in the midst of others as it was.
std::string told(const std::string& answers) {
    std::string told;
    for (Bytes lines(answers); !lines.isAtEnd();) {
        const auto line = lines.takeUntil('\n');
        const auto word = line.substr(std::min(line.find_first_not_of(' '), line.size()));
        const bool isTold = word.starts_with("event ") || word.starts_with("prompt ");
        if (isTold) told.append(line) += '\n';
    }
    return told;
}

}  // namespace

void attackRecording(std::string_view input) {
    const auto answers =
        input.size() % 2 == 0 ? Script::Answers::inFull : Script::Answers::asCancelled;
    const Course session = recorded<HurriedPanel>(recordable(input), answers);
    const Course replay = recorded<Script::StorePanel>(session.recording, answers);
    const auto check = [&](bool holds, auto complaint) {
        expect(holds, complaint, session.recording);
    };
    const bool isUnderstood = ("\n" + replay.answers).find("\n? ") == std::string::npos;
    check(isUnderstood, "a recording that isn't understood");
    check(replay.state == session.state, "a replay with another end");
    if (answers == Script::Answers::asCancelled) return;
    check(told(replay.answers) == told(session.answers), "a replay with other events or prompts");
    check(replay.recording == session.recording, "a replay that is another session");
}

}  // namespace Orvo::Fuzz
