#include "Manager/Host/host_bench.h"

namespace Orvo::Tests {
namespace {

TEST_F(HostTest, RunsTheQuickTestRowByRow) {
    const auto rows = [this] {
        std::string all;
        for (Integer i = 0; i < 6; ++i) {
            const auto result = caption(kCommon.testResults.at(i));
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
    store_.perform(Deed::slide(pair(2).testSlider, 95));
    pass(300);
    host_->runQuickTest();
    pass(3000);
    EXPECT_EQ(rows(), "FPPPPP");
    store_.perform(Deed::slide(pair(2).testSlider, 0));
    host_->set(Fault::mainsFailure, true);
    pass(8000);
    host_->runQuickTest();
    pass(3000);
    EXPECT_EQ(rows(), "PFFFFF");
    EXPECT_FALSE(hasLogged("broken off"));
    host_->runQuickTest();
    host_->set(Fault::linkLoss, true);
    pass(1000);
    EXPECT_TRUE(hasLogged("Quick test broken off"));
    host_->runQuickTest();
    pass(3000);
    EXPECT_EQ(rows(), "P----.");
}

TEST_F(HostTest, WritesTheInternalDataToTheLog) {
    run();
    store_.perform(Deed::click(kCommon.internalDataButton));
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
    store_.perform(Deed::key(kCommon.log, 18));
    pass(300);
    EXPECT_TRUE(hasLogged("SN amplifier: <Serial number of amplifier>"));
    EXPECT_TRUE(hasLogged("Information: <General Informations of Amplifier>"));
    panel_.CancellaTesto();
    store_.perform(Deed::click(kCommon.internalDataButton));
    pass(300);
    EXPECT_TRUE(hasLogged("SN control module: <Serial number of Control Module Card>"));
    store_.promptWith(nullptr);
}

TEST_F(HostTest, TalksToTheAmplifierThatIsPicked) {
    run();
    store_.perform(Deed::click(channel(1).muteButton));
    pass(200);
    store_.enable(kCommon.amplifierIds, true);
    store_.perform(Deed::pick(kCommon.amplifierIds, u"7"));
    EXPECT_FALSE(isLit(kCommon.linkLamp));
    pass(500);
    EXPECT_TRUE(isLit(kCommon.linkLamp));
    EXPECT_FALSE(isLit(channel(1).muteLamp));
    EXPECT_FALSE(hasLogged("Link lost"));
    EXPECT_FALSE(hasLogged("Amplifier off"));
    store_.perform(Deed::pick(kCommon.amplifierIds, u"1"));
    pass(500);
    EXPECT_TRUE(isLit(channel(1).muteLamp));
}

TEST_F(HostTest, BeginsTheLogAfreshBeforeItGetsTooLong) {
    for (int i = 0; i < 2500; ++i) host_->runQuickTest();
    EXPECT_LE(log().size(), 1000U);
    EXPECT_TRUE(hasLogged("Not connected"));
}

}  // namespace
}  // namespace Orvo::Tests
