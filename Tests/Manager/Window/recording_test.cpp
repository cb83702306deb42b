#include <fstream>
#include <functional>
#include <regex>
#include <sstream>

#include <gtest/gtest.h>

#include "Manager/Window/manager_window.h"
#include "Manager/Window/window_bench.h"
#include "Script/recorder.h"
#include "Script/session.h"
#include "Script/store_bench.h"
#include "Support/bench.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;
using Runtime::MouseButton;
using Runtime::ReleasedWhere;
using Script::Answers;
using Script::Recorder;

std::string contentOf(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path).rdbuf();
    return content.str();
}

/// A panel that is only looked at.
class Showcase final : public Script::Bench {
public:
    explicit Showcase(Runtime::Store& store) : store_(store) {}

    void tell(Script::PanelListener*) override {}
    InvokeResult invoke(Long, MemberKind, std::span<const Value>) override { return {}; }
    Script::Person& person() override { throw Error(70, "nobody is here"); }
    Runtime::Store& widgets() override { return store_; }
    void renew() override {}
    void shoot(const String&) override {}

private:
    Runtime::Store& store_;
};

std::string run(Script::Bench& bench, const std::string& script) {
    std::string answers;
    Script::Session session(bench, {},
                            [&](std::string_view line) { answers.append(line).append("\n"); });
    std::istringstream lines(script);
    for (std::string line; std::getline(lines, line);) session.run(line);
    return answers;
}

std::string stateOf(Script::Bench& bench) {
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
    for (const auto widget : {channel(1).muteButton, pair(1).startButton, pair(2).startButton,
                              kCommon.internalDataButton}) {
        person.click(widget);
        window.letPass(333ms);
    }
    person.press(channel(1).volumeSlider);
    for (int position = 5; position < 20; position += 3) {
        person.move(channel(1).volumeSlider, position);
        window.letPass(40ms);
    }
    person.release(channel(1).volumeSlider, MouseButton::left, ReleasedWhere::elsewhere);
    person.slide(pair(1).testSlider, 9);
    person.type(kCommon.log, 18);
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
    Script::StoreBench store;
    WindowBench window;
    for (Script::Bench* bench :
         {static_cast<Script::Bench*>(&store), static_cast<Script::Bench*>(&window)}) {
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

TEST_F(RecorderTest, WhatIsTypedAtPromptsStandsBeforeTheirCauseOrIsKeptSecret) {
    const std::pair<Answers, const char*> rows[] = {
        {Answers::inFull,
         "answer \"530284\"\nanswer \"A 1\"\nanswer \"B 2\"\nanswer \"Näytös\"\n"
         "key List1 18\n# event GeneralInformations 1 \"Näytös\" \"A 1\" \"B 2\"\n"},
        {Answers::asCancelled,
         "answer cancel\nkey List1 18\n# event GeneralInformations …\npointer 11\n"},
    };
    for (const auto& [answers, text] : rows) {
        Typist typist;
        store_.promptWith(&typist);
        EXPECT_EQ(recorded(answers, [this](auto&) { person_.type(kCommon.log, 18); }), text);
    }
}

TEST_F(RecorderTest, WritesWhatThePersonDoesAndThePanelTakes) {
    const auto wait = [this](std::chrono::milliseconds time) { store_.advance(time); };
    const std::string text = recorded(Answers::inFull, [&](auto&) {
        person_.press(channel(1).muteButton);
        wait(70ms);
        person_.release(channel(1).muteButton);
        person_.press(kCommon.powerButton, MouseButton::right);
        person_.release(kCommon.powerButton, MouseButton::right, ReleasedWhere::elsewhere);
        person_.press(channel(2).volumeSlider);
        person_.move(channel(2).volumeSlider, 999);
        person_.move(channel(2).volumeSlider, 999);
        person_.release(channel(2).volumeSlider);
        person_.drop(channel(2).volumeSlider);
        person_.selectTab(kTabs, 7);
        person_.pick(kCommon.amplifierIds, u"no such item");
        store_.enable(kCommon.powerButton, false);
        person_.click(kCommon.powerButton);
    });
    EXPECT_EQ(text,
              "wait 70\nclick Command12\n# event Mute 1\nrelease cmdOnOff right\n"
              "hold ZelvinSlider2\nslide ZelvinSlider2 30\n# event VolumeChange 2 -30\n"
              "hold ZelvinSlider2\ndrop ZelvinSlider2\n");
}

TEST_F(RecorderTest, CallsOfAHandlerAreMadeMeanwhile) {
    const std::string text = recorded(Answers::inFull, [this](Recorder& recorder) {
        ObservedPanel observed(panel_, recorder);
        const auto host = panel_.connect([&](Long, std::span<Value>) {
            observed.Mute(1, true);
            EXPECT_THROW(observed.VNPower(1, -5), Error);
        });
        person_.click(channel(1).muteButton);
    });
    EXPECT_EQ(text,
              "meanwhile let Mute 1 -1\nmeanwhile let VNPower 1 -5\n"
              "click Command12\n# event Mute 1\n# ! 13 Type mismatch\n");
}

/// A host with handlers of its own, whose session is recorded and then replayed.
class ReplayTest : public RecorderTest {
protected:
    using Act = std::function<void(MarvaneAssistantInterface& host)>;

    /// Does `act` to a panel whose host answers every event so, and expects the replay to do the
    /// same, but for the event that carries answers.
    void expectSameReplay(const Act& handler, const Act& act, Answers answered = Answers::inFull) {
        const std::string script = recorded(answered, [&](Recorder& recorder) {
            ObservedPanel host(panel_, recorder);
            const auto connection = panel_.connect([&](Long, std::span<Value>) { handler(host); });
            act(host);
        });
        Showcase live(store_);
        Script::StoreBench bench;
        const std::string answers = run(bench, script);
        EXPECT_EQ(answers.find("\n? "), std::string::npos) << answers;
        EXPECT_EQ(eventsIn(answers), eventsIn(script)) << script;
        EXPECT_EQ(stateOf(bench), stateOf(live)) << script;
    }

private:
    static std::string eventsIn(const std::string& text) {
        const auto events =
            linesThatBegin(std::regex_replace(text, std::regex("\n(# | +)"), "\n"), "event ");
        return std::regex_replace(events, std::regex("event General.*…\n"), "");
    }
};

TEST_F(ReplayTest, AHandlersCallsComeBeforeTheActionGoesOn) {
    Typist typist;
    store_.promptWith(&typist);
    expectSameReplay([](auto& host) { host.ReadOnly(true); },
                     [this](auto&) { person_.type(kCommon.log, 18); });
}

TEST_F(ReplayTest, ATicksHandlerStopsTheTimerThatComesNext) {
    const auto handler = [ticks = -2](auto& host) mutable {
        if (++ticks > 0) host.TimerVirtualTemp34(false);
    };
    expectSameReplay(handler, [this](auto&) {
        person_.slide(pair(1).testSlider, 40);
        person_.slide(pair(2).testSlider, 60);
        store_.advance(20s);
    });
}

// Each time an event is raised its host does something else, now and then something that raises
// another.
TEST_F(ReplayTest, AnEventThatIsRaisedAgainIsAnsweredAnew) {
    int count = 0;
    const auto handler = [&](auto& host) {
        if (++count % 3 == 0) return;
        host.Mute(1, count % 2 == 0);
        if (count % 5 == 0) person_.slide(channel(2).volumeSlider, count);
        host.AggiugiTesto(String(std::size_t(count), u'x'));
    };
    const auto act = [this](auto&) {
        person_.slide(pair(1).testSlider, 40);
        person_.slide(pair(2).testSlider, 60);
        for (int position = 1; position < 20; ++position) {
            person_.slide(channel(1).volumeSlider, position);
            person_.click(channel(1).muteButton);
            person_.activate(pair(1).waves[position % 2 == 0 ? 3 : 4]);
            store_.advance(7777ms);
        }
    };
    expectSameReplay(handler, act);
    EXPECT_GT(count, 100) << "events";
}

/// Does something before it answers.
class BusyTypist final : public Runtime::Prompter {
public:
    explicit BusyTypist(std::function<void()> deed) : deed_(std::move(deed)) {}
    std::optional<String> ask(const Widgets::Question& question) override {
        deed_();
        return typist_.ask(question);
    }

private:
    std::function<void()> deed_;
    Typist typist_;
};

class PromptReplayTest : public ReplayTest {
protected:
    void expectSameReplayOfPrompts(Answers answers) {
        MarvaneAssistantInterface* panel = nullptr;
        Integer deviceId = 40;
        BusyTypist typist([&] {
            panel->IdDevice(++deviceId);
            store_.advance(1500ms);
            person_.click(channel(1).muteButton);
            panel->Volume(2, deviceId);
        });
        store_.promptWith(&typist);
        const auto act = [&](auto& host) {
            panel = &host;
            person_.type(kCommon.log, 18);
            person_.click(channel(1).muteButton);
            panel = nullptr;
        };
        expectSameReplay([](auto& host) { host.Mute(1, !host.Mute(1)); }, act, answers);
    }
};

TEST_F(PromptReplayTest, WhatIsDoneUnderAPromptComesBeforeItsAnswer) {
    expectSameReplayOfPrompts(Answers::inFull);
}

TEST_F(PromptReplayTest, WhatIsDoneUnderAPromptWithASecretAnswerIsStillDone) {
    expectSameReplayOfPrompts(Answers::asCancelled);
}

TEST_F(RecorderTest, TheFileIsCompleteWhileAPromptIsOpen) {
    std::string begun;
    BusyTypist typist([&] {
        store_.advance(5ms);
        begun += contentOf(directory_.path() / "record.txt") + "---\n";
    });
    store_.promptWith(&typist);
    recorded(Answers::inFull, [this](auto&) { person_.type(kCommon.log, 18); });
    EXPECT_NE(begun.find("meanwhile wait 5\nanswer \"530284\"\nkey List1 18\n---"),
              std::string::npos)
        << begun;
}

}  // namespace
}  // namespace Orvo::Manager
