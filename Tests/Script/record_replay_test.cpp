#include <functional>
#include <random>

#include "Script/recorder.h"
#include "Script/recordings.h"
#include "Support/owned_panel.h"
#include "Support/temporary_directory.h"

namespace Orvo::Script {
namespace {

using namespace Tests;
using Runtime::Deed;

constexpr unsigned kSessions = 300;
constexpr int kSteps = 9;

/// Host and person of a panel, who do what comes to their minds, under prompts and in handlers too.
class RandomSession final : public Runtime::Prompter {
public:
    RandomSession(StorePanel& owner, unsigned seed) : owner_(owner), random_(seed) {}

    void run() {
        store().promptWith(this);
        const auto host = panel().connect([this](Long, std::span<Value>) { inTheMidst(); });
        for (int i = 0; i < kSteps; ++i) step();
        store().promptWith(nullptr);
    }

private:
    static constexpr int kDeepest = 3;

    Runtime::Store& store() { return owner_.store(); }
    MarvaneAssistant& panel() { return owner_.panel(); }
    int below(int count) { return std::uniform_int_distribution(0, count - 1)(random_); }
    bool maybe() { return below(2) == 0; }
    Integer channelNumber() { return static_cast<Integer>(1 + below(4)); }

    std::optional<String> ask(const Widgets::Question& question) override {
        inTheMidst();
        if (question.title.empty()) return below(4) > 0 ? u"530284" : u"wrong";
        return below(8) > 0 ? std::optional<String>(u"A 1") : std::nullopt;
    }

    void inTheMidst() {
        if (depth_ == kDeepest) return;
        ++depth_;
        for (int count = below(3); count > 0; --count) step();
        --depth_;
    }

    void step() {
        switch (below(4)) {
            case 0:
                return callMember();
            case 1:
                return store().advance(std::chrono::milliseconds(below(4000)));
            case 2:
                store().perform(Runtime::Deed::key(Layout::kCommon.log, 18));
                return;
            default:
                return doSomething();
        }
    }

    void callMember() {
        const Integer number = channelNumber();
        try {
            const std::function<void()> calls[] = {
                [&] { panel().ReadOnly(maybe()); },
                [&] { panel().Mute(number, maybe()); },
                [&] { panel().AbilitaSlave(maybe()); },
                [&] { panel().Connected(maybe()); },
                [&] { panel().VNPower(number, number); },
                [&] { panel().IdDevice(number); },
                [&] { panel().Volume(number, number); },
                [&] { panel().AggiugiTesto(u"a \n\"b\""); },
                [&] { panel().TimerVirtualTemp34(maybe()); },
            };
            calls[below(static_cast<int>(std::size(calls)))]();
        } catch (const Error&) {
            // It is among what is recorded.
        }
    }

    void doSomething() {
        constexpr Deed::Verb kVerbs[] = {
            Deed::Verb::click, Deed::Verb::release, Deed::Verb::activate, Deed::Verb::slide,
            Deed::Verb::hold,  Deed::Verb::move,    Deed::Verb::drop,     Deed::Verb::tab};
        const auto verb = kVerbs[below(static_cast<int>(std::size(kVerbs)))];
        const auto widget = verb == Deed::Verb::tab
                                ? Layout::kTabs.id
                                : static_cast<Widgets::WidgetId>(below(Layout::kWidgetCount));
        // Nobody can touch it.
        if (Layout::kindOf(widget) == Layout::Kind::timer) return;
        store().perform({.verb = verb, .widget = widget, .number = below(60)});
    }

    StorePanel& owner_;
    std::mt19937 random_;
    int depth_ = 0;
};

TEST(RecordAndReplayTest, GiveTheSamePanelWhateverHappens) {
    const TemporaryDirectory directory;
    const std::string file = directory.path() / "session.txt";
    for (unsigned seed = 0; seed < kSessions; ++seed) {
        const Answers answers = seed % 2 == 0 ? Answers::inFull : Answers::asCancelled;
        StorePanel recorded;
        {
            const Recorder recorder(RecordFile(file, Existing::overwritten), recorded, answers);
            RandomSession(recorded, seed).run();
        }
        StorePanel replayed;
        const std::string said = answersOn(replayed, textIn(file));
        ASSERT_EQ(said.find("\n? "), std::string::npos) << "seed " << seed << '\n' << said;
        EXPECT_EQ(stateOf(replayed), stateOf(recorded)) << "seed " << seed << '\n' << textIn(file);
    }
}

TEST(RecordAndReplayTest, ARecordingThatEndsAnywhereIsASessionToo) {
    const TemporaryDirectory directory;
    const std::string file = directory.path() / "session.txt";
    StorePanel recorded;
    const Recorder recorder(RecordFile(file, Existing::refused), recorded, Answers::inFull);
    RandomSession(recorded, 4).run();
    const std::string script = textIn(file);
    for (auto end = script.find('\n'); end != std::string::npos; end = script.find('\n', end + 1)) {
        StorePanel replayed;
        const std::string begun = script.substr(0, end + 1);
        const std::string said = answersOn(replayed, begun);
        ASSERT_EQ(said.find("\n? "), std::string::npos) << begun;
        const auto told = eventsIn(begun);
        const auto repeated = eventsIn(said);
        ASSERT_GE(repeated.size(), told.size()) << begun << said;
        ASSERT_TRUE(std::equal(told.begin(), told.end(), repeated.begin())) << begun << said;
    }
}

}  // namespace
}  // namespace Orvo::Script
