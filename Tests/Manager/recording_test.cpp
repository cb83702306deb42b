#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "Console/session.h"
#include "Console/store_bench.h"
#include "Manager/Recording/recorder.h"
#include "Manager/Script/window_bench.h"
#include "Manager/manager_window.h"
#include "Support/bench.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;
using Runtime::MouseButton;
using Runtime::ReleasedWhere;
using Tests::id;

std::string contentOf(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path).rdbuf();
    return content.str();
}

/// A panel that is only looked at.
class Showcase final : public Console::Bench {
public:
    explicit Showcase(Runtime::Store& store) : store_(store) {}

    void tell(Console::PanelListener*) override {}
    InvokeResult invoke(Long, MemberKind, std::span<const Value>) override { return {}; }
    Console::Person& person() override { throw Error(70, "nobody is here"); }
    Runtime::Store& widgets() override { return store_; }
    void renew() override {}
    void shoot(const String&) override {}

private:
    Runtime::Store& store_;
};

std::string run(Console::Bench& bench, const std::string& script) {
    std::string answers;
    Console::Session session(bench, {},
                             [&](std::string_view line) { answers.append(line).append("\n"); });
    std::istringstream lines(script);
    for (std::string line; std::getline(lines, line);) session.run(line);
    return answers;
}

std::string stateOf(Console::Bench& bench) {
    std::string script = "show Screen\n";
    for (const Layout::Widget& widget : Layout::kWidgets) {
        const std::string name(widget.name);
        const auto kind = widget.style.kind;
        if (kind == Layout::Kind::list || kind == Layout::Kind::combo) script += "items " + name;
        if (kind == Layout::Kind::picture) script += "drawing " + name;
        script += "\nshow " + name + '\n';
    }
    return run(bench, script);
}

std::string linesThatBegin(const std::string& text, const std::string& begin) {
    std::istringstream lines(text);
    std::string found;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(begin)) found += line.substr(line.find("event")) + '\n';
    }
    return found;
}

/// Types one answer after the other, then cancels.
class Typist final : public Runtime::Prompter {
public:
    std::optional<String> ask(const Widgets::Question&) override {
        if (texts.empty()) return std::nullopt;
        const String text = texts.front();
        texts.erase(texts.begin());
        return text;
    }

    std::vector<String> texts{u"530284", u"A 1", u"B 2", u"Näytös"};
};

void workEverything(ManagerWindow& window) {
    Runtime::UserInput& person = window.panelWidget().store().input();
    window.connectSimulator();
    window.letPass(2s);
    for (const char* widget : {"Command12", "cmdGo12", "cmdGo34", "cmdReadInData"}) {
        person.click(id(widget));
        window.letPass(333ms);
    }
    person.press(id("ZelvinSlider1"));
    for (int position = 5; position < 20; position += 3) {
        person.move(id("ZelvinSlider1"), position);
        window.letPass(40ms);
    }
    person.release(id("ZelvinSlider1"), MouseButton::left, ReleasedWhere::elsewhere);
    person.slide(id("ZelvinSlider3"), 9);
    person.type(id("List1"), 18);
    window.setFault(Simulator::Fault::mainsFailure, true);
    // Late by far: the timers tick as often as they came due.
    window.letPass(7s);
    window.connectNothing();
    window.letPass(1600ms);
}

TEST(Recording, AReplayHasTheSameEventsAndEndsInTheSameState) {
    const Tests::TemporaryDirectory directory;
    const std::string file = directory.path() / "session.txt";
    Typist typist;
    std::string state;
    {
        ManagerWindow window({.record = QString::fromStdString(file), .recordsAnswers = true});
        window.panelWidget().store().promptWith(&typist);
        workEverything(window);
        Showcase live(window.panelWidget().store());
        state = stateOf(live);
    }
    const std::string script = contentOf(file);
    EXPECT_EQ(script.find("\n?"), std::string::npos);
    Console::StoreBench store;
    WindowBench window;
    for (Console::Bench* bench :
         {static_cast<Console::Bench*>(&store), static_cast<Console::Bench*>(&window)}) {
        const std::string answers = run(*bench, script);
        EXPECT_EQ(linesThatBegin(answers, "? "), "");
        EXPECT_EQ(linesThatBegin(answers, "event "), linesThatBegin(script, "# event "));
        EXPECT_EQ(stateOf(*bench), state);
    }
    EXPECT_GT(linesThatBegin(script, "# event ").size(), 200U);
}

class RecorderTest : public Tests::PanelTest {
protected:
    /// What is in the file after `act`, but for the heading, the recording still going on.
    template <class Act>
    std::string recorded(Answers answers, Act act) {
        const std::string file = directory_.path() / "record.txt";
        Recorder recorder(file, panel_, store_, answers);
        act(recorder);
        const std::string text = contentOf(file);
        return text.substr(text.find('\n') + 1);
    }

    Tests::TemporaryDirectory directory_;
};

TEST_F(RecorderTest, WhatIsTypedAtPromptsStandsBeforeTheirCause) {
    Typist typist;
    store_.promptWith(&typist);
    const std::string text =
        recorded(Answers::inFull, [this](auto&) { person_.type(id("List1"), 18); });
    EXPECT_EQ(text,
              "answer \"530284\"\nanswer \"A 1\"\nanswer \"B 2\"\nanswer \"Näytös\"\n"
              "key List1 18\n# event GeneralInformations 1 \"Näytös\" \"A 1\" \"B 2\"\n");
}

TEST_F(RecorderTest, WhatIsTypedAtPromptsIsKeptSecret) {
    Typist typist;
    store_.promptWith(&typist);
    const std::string text =
        recorded(Answers::asCancelled, [this](auto&) { person_.type(id("List1"), 18); });
    EXPECT_EQ(text,
              "answer cancel\nanswer cancel\nanswer cancel\nanswer cancel\n"
              "key List1 18\n# event GeneralInformations …\n");
}

TEST_F(RecorderTest, WritesWhatThePersonDoesAndThePanelTakes) {
    const auto wait = [this](std::chrono::milliseconds time) { store_.advance(time); };
    const std::string text = recorded(Answers::inFull, [&](auto&) {
        person_.press(id("Command12"));
        wait(70ms);
        person_.release(id("Command12"));
        person_.press(id("cmdOnOff"), MouseButton::right);
        person_.release(id("cmdOnOff"), MouseButton::right, ReleasedWhere::elsewhere);
        person_.press(id("ZelvinSlider2"));
        person_.move(id("ZelvinSlider2"), 999);
        person_.move(id("ZelvinSlider2"), 999);
        person_.release(id("ZelvinSlider2"));
        person_.drop(id("ZelvinSlider2"));
        person_.selectTab(id("SSTab1"), 7);
        person_.pick(id("Combo1"), u"no such item");
        store_.enable(id("cmdOnOff"), false);
        person_.click(id("cmdOnOff"));
    });
    EXPECT_EQ(text,
              "wait 70\nclick Command12\n# event Mute 1\nrelease cmdOnOff right\n"
              "hold ZelvinSlider2\nslide ZelvinSlider2 30\nhold ZelvinSlider2\n"
              "# event VolumeChange 2 -30\ndrop ZelvinSlider2\n");
}

TEST_F(RecorderTest, CallsOfAHandlerFollowWhatRaisedTheEvent) {
    const std::string text = recorded(Answers::inFull, [this](Recorder& recorder) {
        ObservedPanel observed(panel_, recorder);
        const auto host = panel_.connect([&](Long, std::span<Value>) {
            observed.Mute(1, true);
            EXPECT_THROW(observed.VNPower(1, -5), Error);
        });
        person_.click(id("Command12"));
    });
    EXPECT_EQ(text,
              "click Command12\n# event Mute 1\nlet Mute 1 -1\nlet VNPower 1 -5\n"
              "# ! 13 Type mismatch\n");
}

TEST(RecordFile, SaysWhyItCannotBeOpened) {
    EXPECT_THROW(RecordFile("/nowhere/at/all"), std::system_error);
}

}  // namespace
}  // namespace Orvo::Manager
