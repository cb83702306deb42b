#include <deque>

#include "Orvo/values/text.h"
#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using QuickTest = PanelTest;

TEST_F(QuickTest, ShowsItsResultsAndClearsThem) {
    for (Integer row = 0; row <= 5; ++row) panel_.chkTest(row, Boolean(Integer(row % 2)));
    EXPECT_EQ(caption("lblTestResult(2)"), u"FAIL");
    EXPECT_EQ(colour("lblTestResult(2)"), rgb(255, 0, 0));
    EXPECT_EQ(caption("lblTestResult(5)"), u"PASS");
    EXPECT_EQ(colour("lblTestResult(5)"), rgb(0, 0, 255));
    panel_.ClearTest();
    for (Integer row = 0; row <= 5; ++row) EXPECT_EQ(panel_.chkTest(row), Boolean(row == 5));
    EXPECT_EQ(caption("lblTestResult(4)"), u"-");
    EXPECT_EQ(colour("lblTestResult(4)"), rgb(255, 255, 128));
    panel_.ClearMains();
    EXPECT_EQ(caption("lblTestResult(5)"), u"");
    EXPECT_EQ(colour("lblTestResult(5)"), rgb(255, 255, 128));
    for (const Integer row : {Integer{6}, Integer{-1}}) {
        EXPECT_EQ(errorOf([&] { panel_.chkTest(row, kTrue); }), 340);
        EXPECT_EQ(errorOf([&] { panel_.chkTest(row); }), 340);
    }
}

using AmplifierId = PanelTest;

TEST_F(AmplifierId, IsPickedByAPersonOrWrittenByTheHost) {
    const auto combo = id("Combo1");
    const auto& shown = store_.get<Runtime::StoredCombo>(combo).state().text;
    const auto& log = store_.get<Runtime::StoredList>(id("List1")).state();
    panel_.AggiugiTesto(u"a line");
    panel_.IdDevice(7);
    EXPECT_EQ(shown, u"7");
    EXPECT_EQ(caption("lblAmpId12"), u"1");
    store_.enable(combo, true);
    person_.pick(combo, u"7");
    person_.type(combo, u'4');
    EXPECT_EQ(log.items.size(), 1U);
    person_.pick(combo, u"12");
    EXPECT_EQ(panel_.IdDevice(), 12);
    for (const auto* label : {"lblAmpId12", "lblAmpId34"}) EXPECT_EQ(caption(label), u"12");
    EXPECT_TRUE(log.items.empty());
    for (const Integer value : {Integer{0}, Integer{-5}, Integer{300}}) {
        panel_.IdDevice(value);
        EXPECT_EQ(panel_.IdDevice(), value);
        EXPECT_EQ(shown, decimalText(value));
    }
    EXPECT_EQ(takeLines(), Lines{"ChangeAmpId 12"});
}

using MessageLog = PanelTest;

TEST_F(MessageLog, KeepsLinesAsTheyAre) {
    const auto& items = store_.get<Runtime::StoredList>(id("List1")).state().items;
    panel_.CancellaTesto();
    for (const auto* line : {u"first", u"", u" two\nlines "}) panel_.AggiugiTesto(line);
    EXPECT_EQ(items, (std::deque<String>{u"first", u"", u" two\nlines "}));
    panel_.CancellaTesto();
    EXPECT_TRUE(items.empty());
}

constexpr Integer kControlR = 18;

// Plays back answers, and notes the prompts.
class Answers final : public Runtime::Prompter {
public:
    std::optional<String> ask(const Widgets::Question& question) override {
        asked.push_back(toUtf8(question.text + u'/' + question.title));
        if (during) during();
        if (left.empty()) return std::nullopt;
        auto answer = left.front();
        left.pop_front();
        return answer;
    }
    std::deque<std::optional<String>> left;
    std::vector<std::string> asked;
    std::function<void()> during;
};

class InformationEntry : public PanelTest {
protected:
    InformationEntry() { store_.promptWith(&answers_); }
    Answers answers_;
};

TEST_F(InformationEntry, AsksBehindThePassword) {
    const struct {
        const char* label;
        std::deque<std::optional<String>> answers;
        std::size_t prompts;
        Lines raised;
    } kRows[] = {
        {"two wrong", {u" 530284", u"530284 ", u"530284"}, 2, {}},
        {"two cancels", {}, 2, {}},
        {"second try, no serial number", {u"", u"530284", std::nullopt}, 3, {}},
        {"no card", {u"530284", u"A1", u""}, 3, {}},
        {"no information", {u"530284", u"A1", u" "}, 4, {"GeneralInformations 5  A1  "}},
        {"all", {u"530284", u"A1", u"C2", u"text"}, 4, {"GeneralInformations 5 text A1 C2"}},
    };
    panel_.IdDevice(5);
    panel_.ReadOnly(kTrue);
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.label);
        const bool isRaised = !row.raised.empty();
        store_.enable(id("Command1"), false);
        answers_.left = row.answers;
        answers_.asked.clear();
        person_.type(id("List1"), kControlR);
        EXPECT_EQ(answers_.asked.size(), row.prompts);
        EXPECT_EQ(takeLines(), row.raised);
        EXPECT_EQ(isEnabled("Command1"), row.prompts > 2);
        EXPECT_EQ(store_.pointer(),
                  isRaised ? Widgets::Pointer::hourglass : Widgets::Pointer::standard);
    }
    EXPECT_EQ(answers_.asked, (Lines{"Password/", "Serial number of amplifier/SN Amplifier",
                                     "Serial number of Control Module Card/SN Control Module",
                                     "General Informations of Amplifier/New Informations"}));
    EXPECT_EQ(panel_.ReadOnly(), kTrue);
}

TEST_F(InformationEntry, LetsTheHostGoOnWhileAPromptIsOpen) {
    answers_.left = {u"530284", u"A1", u"C2", u""};
    person_.slide(id("ZelvinSlider3"), 9);
    takeLines();
    answers_.during = [this] {
        panel_.IdDevice(static_cast<Integer>(panel_.IdDevice() + 1));
        store_.advance(std::chrono::milliseconds(1500));
    };
    person_.type(id("List1"), kControlR);
    const Lines ticks(4, "SetTemp 1 9");
    const Lines lines = takeLines();
    EXPECT_EQ(Lines(lines.begin(), lines.end() - 1), ticks);
    EXPECT_EQ(lines.back(), "GeneralInformations 5  A1 C2");
}

TEST_F(InformationEntry, EndsWhenThePanelIsReleasedUnderIt) {
    auto bench = makeBench();
    bench->store().promptWith(&answers_);
    answers_.left = {u"530284", u"A1"};
    answers_.during = [&] { bench->release(); };
    bench->store().input().type(id("List1"), kControlR);
    EXPECT_EQ(answers_.asked.size(), 1U);
    EXPECT_TRUE(bench->store().widget(id("Command1")).isEnabled());
}

using ReadOnlyMode = PanelTest;

TEST_F(ReadOnlyMode, DisablesEveryInputThatAPersonCouldChangeTheAmplifierWith) {
    const auto disabled = [this] {
        std::size_t count = 0;
        for (const auto& widget : Layout::kWidgets) {
            if (!isEnabled(widget.name) && widget.name != "Combo1") ++count;
        }
        return count;
    };
    for (const auto& [value, count] : std::vector<std::pair<Boolean, std::size_t>>{
             {kTrue, 36}, {kTrue, 36}, {Boolean(Integer{1}), 0}, {kTrue, 36}, {kFalse, 0}}) {
        panel_.ReadOnly(value);
        EXPECT_EQ(disabled(), count) << value.raw();
        EXPECT_EQ(panel_.ReadOnly(), value);
    }
    panel_.ReadOnly(kTrue);
    for (const auto* name : {"cmdGo12", "Command17", "chkOnOff34", "cmdOnOff"}) {
        person_.click(id(name));
    }
    for (const auto* name : {"ZelvinSlider1", "ZelvinSlider5", "ZelvinSlider6"}) {
        person_.slide(id(name), 9);
    }
    person_.click(id("cmdReadInData"));
    EXPECT_EQ(takeLines(), Lines{"DownLoad"});
    panel_.Mute(1, kTrue);
    EXPECT_TRUE(isLit("Shape16"));
}

}  // namespace
}  // namespace Orvo::Tests
