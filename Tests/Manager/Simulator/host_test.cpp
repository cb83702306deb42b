#include <variant>

#include "Manager/Simulator/host_bench.h"

namespace Orvo::Tests {
namespace {

TEST_F(HostTest, BringsUpTheLinkTheMainsAndOnAskingTheAmplifier) {
    const struct {
        int wait;
        bool isConnected;
        bool hasMains;
        bool hasPower;
        bool hasRails;
        bool isReady;
    } kRows[] = {{100, false, false, false, false, false}, {300, true, true, false, false, false},
                 {0, true, true, false, false, false},     {250, true, true, true, false, false},
                 {500, true, true, true, true, false},     {1200, true, true, true, true, true}};
    for (const auto& row : kRows) {
        if (row.wait == 0) person_.click(id("cmdOnOff"));
        pass(row.wait);
        SCOPED_TRACE(host_->now().count());
        EXPECT_EQ(isLit("shpConnected"), row.isConnected);
        EXPECT_EQ(caption("lblConnected34"), row.isConnected ? u"Connected" : u"Disconnected");
        EXPECT_EQ(isLit("shpMainPresence12"), row.hasMains);
        EXPECT_EQ(isLit("shpOnOff"), row.hasPower);
        const std::string rail = digits({"LED1", "LED2", "LED25"});
        EXPECT_EQ(rail != "000" && rail != "___", row.hasRails);
        EXPECT_EQ(isLit("Shape17"), row.isReady);
        EXPECT_EQ(isLit("Shape12"), row.isReady);
    }
    EXPECT_TRUE(isLit("Shape6"));
    EXPECT_NEAR(positivePower(), 118, 2);
    EXPECT_LT(host_->sinceLastWord(), Milliseconds(200));
}

TEST_F(HostTest, ShowsTheSoftStartAndTheDischarge) {
    pass(500);
    person_.click(id("chkOnOff12"));
    pass(600);
    int last = positivePower();
    for (int i = 0; i < 4; ++i) {
        pass(200);
        EXPECT_GT(positivePower(), last);
        last = positivePower();
    }
    pass(2000);
    person_.click(id("chkOnOff12"));
    pass(1000);
    EXPECT_FALSE(isLit("shpOnOff"));
    EXPECT_FALSE(isLit("Shape17"));
    EXPECT_GT(positivePower(), 20);
    pass(20'000);
    EXPECT_EQ(positivePower(), 0);
    EXPECT_NEAR(std::stoi(digits({"LED5", "LED6", "LED27"})), 24, 1);
}

TEST_F(HostTest, PutsAPowerButtonBackThatCameToNothing) {
    person_.click(id("chkOnOff12"));
    EXPECT_FALSE(isChecked("chkOnOff12"));
    EXPECT_TRUE(hasLogged("Not connected"));
    host_->set(Fault::mainsFailure, true);
    pass(500);
    person_.click(id("chkOnOff12"));
    EXPECT_TRUE(isChecked("chkOnOff12"));
    pass(500);
    EXPECT_FALSE(isChecked("chkOnOff12"));
    person_.click(id("chkOnOff12"));
    host_->set(Fault::linkLoss, true);
    pass(1000);
    EXPECT_FALSE(isChecked("chkOnOff12"));
}

TEST_F(HostTest, DoesNotFlipThePowerButtonsToAndFro) {
    run();
    for (const bool isOn : {false, true}) {
        pass(70);
        person_.click(id("chkOnOff12"));
        for (int i = 0; i < 30; ++i) {
            pass(10);
            ASSERT_EQ(isChecked("chkOnOff12"), isOn) << i;
        }
        EXPECT_EQ(isLit("shpOnOff"), isOn);
        EXPECT_EQ(isChecked("chkOnOff34"), isOn);
    }
    EXPECT_TRUE(hasLogged("Amplifier off"));
}

TEST_F(HostTest, MutesWhenTheAmplifierConfirms) {
    run();
    const struct {
        const char* button;
        std::vector<const char*> lit;
    } kRows[] = {
        {"Command11", {"Shape15"}},
        {"Command14", {"Shape15", "Shape11"}},
        {"Command11", {"Shape11"}},
        {"Command17", {"Shape34", "Shape16", "Shape15", "Shape11", "Shape10"}},
        {"Command17", {}},
    };
    for (const auto& row : kRows) {
        person_.click(id(row.button));
        pass(200);
        for (const auto* lamp : {"Shape34", "Shape16", "Shape15", "Shape11", "Shape10"}) {
            const auto found = std::find_if(row.lit.begin(), row.lit.end(), [&](const char* lit) {
                return std::string_view(lit) == lamp;
            });
            EXPECT_EQ(isLit(lamp), found != row.lit.end()) << row.button << ' ' << lamp;
        }
    }
    person_.click(id("Command12"));
    EXPECT_FALSE(isLit("Shape16"));
}

TEST_F(HostTest, SilencesWhatIsMuted) {
    run();
    EXPECT_GT(swing("Picture1").highest, 5);
    person_.click(id("Command12"));
    pass(300);
    EXPECT_NEAR(swing("Picture1").highest, 0, 1);
    EXPECT_TRUE(isLit("Shape22"));
}

TEST_F(HostTest, ShowsTheVolumeThatIsConfirmedAndLeavesAHeldSliderAlone) {
    run();
    const auto readout = [this] { return digits({"LED20", "LED19"}); };
    EXPECT_EQ(readout(), "06");
    EXPECT_EQ(position("ZelvinSlider1"), 18);
    person_.hold(id("ZelvinSlider1"));
    person_.move(id("ZelvinSlider1"), 10);
    EXPECT_EQ(readout(), "06");
    pass(300);
    EXPECT_EQ(readout(), "00");
    EXPECT_EQ(position("ZelvinSlider1"), 10);
    person_.drop(id("ZelvinSlider1"));
    pass(20);
    EXPECT_EQ(position("ZelvinSlider1"), 15);
    person_.move(id("ZelvinSlider1"), 21);
    pass(200);
    EXPECT_EQ(readout(), "12");
    EXPECT_EQ(caption("Label76"), u"-");
}

TEST_F(HostTest, DoesNotPullBackASliderThatIsMovedFasterThanTheAmplifierAnswers) {
    run();
    for (Integer position = 19; position <= 28; ++position) {
        person_.move(id("ZelvinSlider4"), position);
        pass(20);
        EXPECT_EQ(this->position("ZelvinSlider4"), position);
    }
    pass(300);
    EXPECT_EQ(position("ZelvinSlider4"), 28);
    EXPECT_EQ(digits({"LED9", "LED10"}), "26");
}

TEST_F(HostTest, PutsASliderBackThatWasMovedWithoutALink) {
    run();
    person_.slide(id("ZelvinSlider1"), 25);
    host_->set(Fault::linkLoss, true);
    pass(1000);
    person_.slide(id("ZelvinSlider2"), 25);
    pass(20);
    for (const auto* slider : {"ZelvinSlider1", "ZelvinSlider2"}) EXPECT_EQ(position(slider), 18);
}

TEST_F(HostTest, RoutesTheGeneratorToTheChosenInput) {
    run();
    for (const auto* slider : {"ZelvinSlider1", "ZelvinSlider2"}) person_.slide(id(slider), 15);
    const struct {
        const char* signal;
        const char* input;
        float lowest;
        float highest;
    } kRows[] = {
        {"opt1000hz_ch12", "optP1", -105, 105},
        {"opt100hz_ch12", "optN1", -105, 105},
        {"opt10000hz_ch12", "optP2", -105, 105},
    };
    for (const auto& row : kRows) {
        person_.click(id(row.signal));
        person_.click(id(row.input));
        person_.click(id("cmdGo12"));
        pass(500);
        const bool isFirst = std::string_view(row.input).back() == '1';
        const auto driven = swing(isFirst ? "Picture1" : "Picture2");
        EXPECT_NEAR(driven.highest, row.highest, 4) << row.signal;
        EXPECT_NEAR(driven.lowest, row.lowest, 4) << row.signal;
        EXPECT_LT(swing(isFirst ? "Picture2" : "Picture1").highest, 95) << row.signal;
    }
    EXPECT_TRUE(hasLogged("Channel 1: 100 Hz to the negative input"));
}

TEST_F(HostTest, ShowsTheNegativeInputInverted) {
    run();
    const auto early = [this] {
        const auto& drawing = store_.get<Runtime::StoredPicture>(id("Picture3")).state().drawing;
        return std::get<Runtime::DrawnPolyline>(drawing.back()).points[20].y;
    };
    person_.click(id("cmdGo34"));
    pass(500);
    EXPECT_LT(early(), 40);
    person_.click(id("optN3"));
    person_.click(id("cmdGo34"));
    pass(500);
    EXPECT_GT(early(), 60);
}

TEST_F(HostTest, ClipsAtTheRails) {
    run();
    person_.click(id("cmdGo12"));
    const auto flat = [this] {
        const auto& drawing = store_.get<Runtime::StoredPicture>(id("Picture1")).state().drawing;
        const auto& points = std::get<Runtime::DrawnPolyline>(drawing.back()).points;
        const float top = 50 - swing("Picture1").highest / 3;
        return std::count_if(points.begin(), points.end(),
                             [top](auto point) { return point.y < top + 0.3F; });
    };
    const struct {
        Integer position;
        float highest;
        bool isClipped;
    } kRows[] = {{18, 64, false}, {16, 101, false}, {15, 105, true}};
    for (const auto& row : kRows) {
        person_.slide(id("ZelvinSlider1"), row.position);
        pass(500);
        EXPECT_NEAR(swing("Picture1").highest, row.highest, 3) << row.position;
        EXPECT_EQ(flat() > 40, row.isClipped) << row.position;
    }
}

TEST_F(HostTest, RunsTheThermalTestFromItsSlider) {
    run();
    person_.slide(id("ZelvinSlider3"), 95);
    pass(6000);
    EXPECT_EQ(temperature(), 95);
    for (const auto* lamp : {"Shape28", "Shape18", "Shape21"}) EXPECT_TRUE(isLit(lamp)) << lamp;
    EXPECT_FALSE(isLit("Shape13"));
    person_.slide(id("ZelvinSlider3"), 80);
    pass(6000);
    EXPECT_TRUE(isLit("Shape18"));
    person_.slide(id("ZelvinSlider3"), 0);
    pass(3000);
    EXPECT_LT(temperature(), 40);
    for (const auto* lamp : {"Shape28", "Shape18", "Shape21"}) EXPECT_FALSE(isLit(lamp)) << lamp;
    EXPECT_TRUE(hasLogged("Channel 1: protection tripped"));
    EXPECT_TRUE(hasLogged("Channel 2: protection cleared"));
}

TEST_F(HostTest, RunsTheQuickTestRowByRow) {
    const auto rows = [this] {
        std::string all;
        for (int i = 0; i < 6; ++i) {
            const auto result = caption("lblTestResult(" + std::to_string(i) + ")");
            all += result.empty() ? "." : toUtf8(result.substr(0, 1));
        }
        return all;
    };
    const struct {
        const char* label;
        int wait;
        const char* results;
    } kRows[] = {{"at once", 0, "-----."},
                 {"the first", 450, "P----."},
                 {"the third", 800, "PPP--."},
                 {"the last", 1200, "PPPPPP"}};
    run();
    host_->runQuickTest();
    for (const auto& row : kRows) {
        pass(row.wait);
        EXPECT_EQ(rows(), row.results) << row.label;
    }
    EXPECT_TRUE(hasLogged("Quick test: 6 of 6 passed"));
    person_.slide(id("ZelvinSlider6"), 95);
    pass(300);
    host_->runQuickTest();
    pass(3000);
    EXPECT_EQ(rows(), "FPPPPP");
    person_.slide(id("ZelvinSlider6"), 0);
    host_->set(Fault::mainsFailure, true);
    pass(8000);
    host_->runQuickTest();
    pass(3000);
    EXPECT_EQ(rows(), "PFFFFF");
    host_->set(Fault::linkLoss, true);
    pass(1000);
    host_->runQuickTest();
    pass(3000);
    EXPECT_EQ(rows(), "PFFFFF");
}

TEST_F(HostTest, WritesTheInternalDataToTheLog) {
    run();
    person_.click(id("cmdReadInData"));
    EXPECT_FALSE(hasLogged("Internal data"));
    pass(200);
    for (const auto* text : {"Internal data", "SN amplifier: ", "Channel 4: -6 dB, open", "Pair 2",
                             "Operating time: 00:00:02", "Starts: 1"}) {
        EXPECT_TRUE(hasLogged(text)) << text;
    }
    pass(3000);
    EXPECT_EQ(logged("Internal data"), 1);
}

class Answering final : public Runtime::Prompter {
public:
    std::optional<String> ask(const Widgets::Question& question) override {
        return question.text == u"Password" ? u"530284" : u"<" + question.text + u">";
    }
};

TEST_F(HostTest, KeepsTheInformationThatWasEntered) {
    Answering answering;
    store_.promptWith(&answering);
    run();
    person_.type(id("List1"), 18);
    pass(300);
    EXPECT_TRUE(hasLogged("SN amplifier: <Serial number of amplifier>"));
    EXPECT_TRUE(hasLogged("Information: <General Informations of Amplifier>"));
    panel_.CancellaTesto();
    person_.click(id("cmdReadInData"));
    pass(300);
    EXPECT_TRUE(hasLogged("SN control module: <Serial number of Control Module Card>"));
    store_.promptWith(nullptr);
}

TEST_F(HostTest, TalksToTheAmplifierThatIsPicked) {
    run();
    person_.click(id("Command12"));
    pass(200);
    store_.enable(id("Combo1"), true);
    person_.pick(id("Combo1"), u"7");
    EXPECT_FALSE(isLit("shpConnected"));
    EXPECT_EQ(host_->amplifierId(), 7);
    pass(500);
    EXPECT_TRUE(isLit("shpConnected"));
    EXPECT_FALSE(isLit("Shape16"));
    EXPECT_FALSE(hasLogged("Link lost"));
    EXPECT_FALSE(hasLogged("Amplifier off"));
    person_.pick(id("Combo1"), u"1");
    pass(500);
    EXPECT_TRUE(isLit("Shape16"));
}

TEST_F(HostTest, BeginsTheLogAfreshBeforeItGetsTooLong) {
    for (int i = 0; i < 2500; ++i) host_->runQuickTest();
    EXPECT_LE(log().size(), 1000U);
    EXPECT_TRUE(hasLogged("Not connected"));
}

// What the panel did to its widgets, in words.
class Recorder final : public Runtime::OperationObserver {
public:
    void before(const Runtime::Operation& operation) override {
        std::string line = std::to_string(operation.widget) + ' ' +
                           std::to_string(static_cast<int>(operation.verb));
        if (const auto* text = std::get_if<StringView>(&operation.value)) line += toUtf8(*text);
        if (const auto* number = std::get_if<Integer>(&operation.value)) {
            line += ' ' + std::to_string(*number);
        }
        if (const auto* drawn = std::get_if<Runtime::LineSegment>(&operation.value)) {
            line += ' ' + std::to_string(drawn->from.y);
        }
        lines.push_back(line);
    }
    std::vector<std::string> lines;
};

TEST_F(HostTest, LivesTheSameLifeForTheSameSeedHoweverItsTimeIsDivided) {
    const auto record = [](std::uint32_t seed, int pace) {
        const auto bench = makeBench();
        Recorder recorder;
        bench->store().observeWith(&recorder);
        SimulatedHost host(bench->panel(), seed);
        for (int now = 0; now < 6000; now += pace) {
            if (now == 2400) bench->store().input().click(id("Command11"));
            host.advance(Milliseconds(pace));
        }
        bench->store().observeWith(nullptr);
        return recorder.lines;
    };
    const auto life = record(1, 16);
    EXPECT_GT(life.size(), 10'000U);
    EXPECT_EQ(life, record(1, 16));
    EXPECT_EQ(life, record(1, 48));
    EXPECT_NE(life, record(2, 16));
}

TEST_F(HostTest, SendsOnlyWhatChanged) {
    run();
    person_.click(id("Command17"));
    pass(1000);
    Recorder recorder;
    store_.observeWith(&recorder);
    pass(5000);
    store_.observeWith(nullptr);
    // All scopes show silence and nothing is asked for: what is left is a volt here and there.
    EXPECT_LT(recorder.lines.size(), 200U);
}

TEST_F(HostTest, SkipsWhatCannotBeMadeUpFor) {
    host_->advance(std::chrono::hours(50));
    EXPECT_EQ(host_->now(), std::chrono::minutes(10));
}

}  // namespace
}  // namespace Orvo::Tests
