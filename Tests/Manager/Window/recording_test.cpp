#include <fstream>
#include <functional>
#include <regex>
#include <sstream>

#include <gtest/gtest.h>

#include "Manager/Window/manager_window.h"
#include "Manager/Window/window_panel.h"
#include "Script/recorder.h"
#include "Script/session.h"
#include "Script/store_panel.h"
#include "Support/bench.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;
using Runtime::MouseButton;
using Runtime::ReleasedWhere;
using Script::Answers;
using Script::Recorder;
using Tests::id;

std::string contentOf(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path).rdbuf();
    return content.str();
}

template <class Panel>
std::string run(Panel& panel, const std::string& script) {
    std::string answers;
    Script::Session session(panel, panel, {},
                            [&](std::string_view line) { answers.append(line).append("\n"); });
    std::istringstream lines(script);
    for (std::string line; std::getline(lines, line);) session.run(line);
    return answers;
}

template <class Panel>
std::string stateOf(Panel& panel) {
    std::string script = "show Screen\n";
    for (const Layout::Widget& widget : Layout::kWidgets) {
        const std::string name(widget.name);
        const auto kind = widget.style.kind;
        if (kind == Layout::Kind::list || kind == Layout::Kind::combo) script += "items " + name;
        if (kind == Layout::Kind::picture) script += "drawing " + name;
        script += "\nshow " + name + '\n';
    }
    return run(panel, script);
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
        WindowPanel panel(window.panelWidget());
        state = stateOf(panel);
    }
    const std::string script = contentOf(file);
    EXPECT_EQ(script.find("\n?"), std::string::npos);
    const auto expectSameReplay = [&](auto& panel) {
        const std::string answers = run(panel, script);
        EXPECT_EQ(linesThatBegin(answers, "? "), "");
        EXPECT_EQ(linesThatBegin(answers, "event "), linesThatBegin(script, "# event "));
        EXPECT_EQ(stateOf(panel), state);
    };
    Script::StorePanel panel;
    expectSameReplay(panel);
    Window::PanelWidget window(Platform{}, nullptr, Window::Clock::byHand);
    WindowPanel windowPanel(window);
    expectSameReplay(windowPanel);
    EXPECT_GT(linesThatBegin(script, "# event ").size(), 200U);
}

/// The panel of a bench, which is never exchanged.
class BenchPanel final : public Script::PanelOwner, public Script::Person {
public:
    explicit BenchPanel(Tests::Bench& bench) : bench_(bench) {}
    MarvaneAssistant& panel() override { return bench_.panel(); }
    Runtime::Store& store() override { return bench_.store(); }

private:
    void exchange() override {}
    Tests::Bench& bench_;
};

class RecorderTest : public Tests::PanelTest {
protected:
    /// What is in the file after `act`, but for the heading, the recording still going on.
    template <class Act>
    std::string recorded(Answers answers, Act act) {
        const std::string file = directory_.path() / "record.txt";
        Recorder recorder(file, owner_, answers);
        act(recorder);
        const std::string text = contentOf(file);
        return text.substr(text.find('\n') + 1);
    }

    Tests::TemporaryDirectory directory_;
    BenchPanel owner_{*bench_};
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
        EXPECT_EQ(recorded(answers, [this](auto&) { person_.type(id("List1"), 18); }), text);
    }
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
        person_.click(id("Command12"));
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
        Script::StorePanel fresh;
        const std::string answers = run(fresh, script);
        EXPECT_EQ(answers.find("\n? "), std::string::npos) << answers;
        EXPECT_EQ(eventsIn(answers), eventsIn(script)) << script;
        EXPECT_EQ(stateOf(fresh), stateOf(owner_)) << script;
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
                     [this](auto&) { person_.type(id("List1"), 18); });
}

TEST_F(ReplayTest, ATicksHandlerStopsTheTimerThatComesNext) {
    const auto handler = [ticks = -2](auto& host) mutable {
        if (++ticks > 0) host.TimerVirtualTemp34(false);
    };
    expectSameReplay(handler, [this](auto&) {
        person_.slide(id("ZelvinSlider3"), 40);
        person_.slide(id("ZelvinSlider6"), 60);
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
        if (count % 5 == 0) person_.slide(id("ZelvinSlider2"), count);
        host.AggiugiTesto(String(std::size_t(count), u'x'));
    };
    const auto act = [this](auto&) {
        person_.slide(id("ZelvinSlider3"), 40);
        person_.slide(id("ZelvinSlider6"), 60);
        for (int position = 1; position < 20; ++position) {
            person_.slide(id("ZelvinSlider1"), position);
            person_.click(id("Command12"));
            person_.activate(id(position % 2 == 0 ? "optEIAJ_ch12" : "optLineIn12"));
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
            person_.click(id("Command12"));
            panel->Volume(2, deviceId);
        });
        store_.promptWith(&typist);
        const auto act = [&](auto& host) {
            panel = &host;
            person_.type(id("List1"), 18);
            person_.click(id("Command12"));
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
    recorded(Answers::inFull, [this](auto&) { person_.type(id("List1"), 18); });
    EXPECT_NE(begun.find("meanwhile wait 5\nanswer \"530284\"\nkey List1 18\n---"),
              std::string::npos)
        << begun;
}

}  // namespace
}  // namespace Orvo::Manager
