#include "Manager/Session/session_bench.h"
#include "Script/recordings.h"

namespace Orvo::Manager {
namespace {

class SessionTest : public SessionBench {
protected:
    void replay(const std::string& script) {
        std::ofstream(file_) << script;
        session_->startReplay(file_);
    }

    void letReplayEnd() {
        while (session_->isReplaying()) session_->letPass(100ms);
    }

    std::vector<std::string> loggedEvents() {
        std::string text;
        for (const std::string& line : session_->station().log().lines()) text += line + '\n';
        return eventsIn(text);
    }
};

TEST_F(SessionTest, RecordsFromTheStartAndInFullWhenTheSettingsSaySo) {
    Typist typist;
    begin({.record = file_, .answers = Script::Answers::inFull});
    store().promptWith(&typist);
    // Nobody is connected, but what is held is left alone.
    store().perform(Runtime::Deed::hold(pair(1).testSlider));
    store().perform(Runtime::Deed::move(pair(1).testSlider, 9));
    store().perform(Runtime::Deed::key(kCommon.log, 18));
    // Late by far: the timers tick as often as they came due.
    session_->letPass(7s);
    session_->stopRecording();

    const std::string script = textIn(file_);
    Script::StorePanel fresh;
    EXPECT_EQ(eventsIn(answersOn(fresh, script)), eventsIn(script));
    EXPECT_EQ(stateOf(fresh), stateOf(owner_));
    EXPECT_EQ(eventsIn(script).size(), 6U);
}

TEST_F(SessionTest, WhatIsRecordedInTheMidstIsReplayedAlike) {
    session_->connectSimulator();
    session_->letPass(2s);
    store().perform(Runtime::Deed::click(pair(2).waves[0]));
    click(pair(2).startButton);
    const std::string before = stateOf(owner_);
    session_->startRecording(file_);
    EXPECT_EQ(stateOf(owner_), before);
    for (const auto button :
         {channel(1).muteButton, pair(1).startButton, kCommon.internalDataButton}) {
        session_->letPass(1s);
        click(button);
    }
    session_->connectNothing();
    session_->letPass(1s);
    session_->stopRecording();
    const std::string state = stateOf(owner_);
    click(channel(2).muteButton);
    session_->station().log().clear();
    session_->startReplay(file_);
    EXPECT_EQ(panel().Mute(1), kFalse);
    letReplayEnd();
    EXPECT_EQ(warnings_, std::vector<std::string>());
    EXPECT_EQ(stateOf(owner_), state);
    EXPECT_EQ(loggedEvents(), eventsIn(textIn(file_)));
    EXPECT_NE(textIn(file_).find("\n# not brought here: Generator: 100 Hz to channel 3 +\n"),
              std::string::npos);
    EXPECT_GE(loggedEvents().size(), 3U);
    EXPECT_TRUE(session_->station().traces().has(1));
}

TEST_F(SessionTest, AReplayTakesItsTime) {
    replay("let Mute 1 true\non Mute wait 5000\nclick Command12\nwait 1000\nlet Mute 2 true\n");
    session_->letPass(900ms);
    EXPECT_EQ(panel().Mute(1), kTrue);
    EXPECT_EQ(store().now(), 5900ms) << "a handler's wait is over at once";
    EXPECT_EQ(panel().Mute(2), kFalse);
    session_->letPass(100ms);
    EXPECT_EQ(panel().Mute(2), kTrue);
}

TEST_F(SessionTest, AReplayCanBePausedAndPlayedAtOtherSpeedsAndSaysWhereItIs) {
    replay("wait 3600000\nlet Mute 1 true\nmeanwhile wait 9\nwait 90000\nlet Mute 1 false\n");
    struct Row {
        std::size_t speed;
        bool isPaused;
        const char* position;
    };
    const Row rows[] = {
        {2, false, "00:00:10 of 01:01:30, 1x, line 1"},
        {0, false, "00:00:12 of 01:01:30, ¼x, line 1"},
        {1, false, "00:00:17 of 01:01:30, ½x, line 1"},
        {4, true, "00:00:17 of 01:01:30, paused, line 1"},
        {3, false, "00:00:37 of 01:01:30, 2x, line 1"},
        {4, false, "00:01:17 of 01:01:30, 4x, line 1"},
        {5, false, "01:01:17 of 01:01:30, as fast as possible, line 4"},
    };
    for (const auto& [speed, isPaused, position] : rows) {
        session_->replay()->setSpeed(kReplaySpeeds[speed]);
        session_->replay()->setPaused(isPaused);
        const auto pace = speed == 5 ? 3600ms : 10'000ms;
        for (auto passed = 0ms; passed < pace; passed += 10ms) session_->letPass(10ms);
        EXPECT_EQ(session_->replay()->position(), position);
        EXPECT_LE(store().now() - 12h, 0ms);
    }
    EXPECT_EQ(panel().Mute(1), kTrue);
    session_->letPass(100ms);
    EXPECT_FALSE(session_->isReplaying());
}

TEST_F(SessionTest, WhatIsConnectedEndsAReplay) {
    store().promptWith(nullptr);
    replay("wait 1000\nlet Mute 1 true\n");
    session_->letPass(25ms);
    EXPECT_NE(store().prompter(), nullptr);
    session_->connectSimulator();
    EXPECT_EQ(store().prompter(), nullptr);
    EXPECT_FALSE(session_->isReplaying());
    session_->letPass(2s);
    EXPECT_EQ(panel().Mute(1), kFalse);
}

TEST_F(SessionTest, APersonMayTouchThePanelAtAnyMomentOfAReplay) {
    replay("on Mute let Mute 2 true\nwait 1000\n");
    click(channel(1).muteButton);
    letReplayEnd();
    EXPECT_EQ(warnings_, std::vector<std::string>());
}

TEST_F(SessionTest, WhatCannotBeRecordedOrReplayedIsToldAndChangesNothing) {
    session_->connectSimulator();
    const auto* const before = &store();
    session_->startRecording("/no/such/place");
    session_->startReplay("/no/such/session");
    session_->startReplay(directory_.path());
    EXPECT_EQ(warnings_,
              (std::vector<std::string>{"/no/such/place: No such file or directory",
                                        "/no/such/session: No such file or directory",
                                        directory_.path().string() + ": Is a directory"}));
    EXPECT_FALSE(session_->isRecording());
    EXPECT_NE(session_->simulator(), nullptr);
    EXPECT_EQ(&store(), before);
    EXPECT_THROW(begin({.record = "/no/such/place"}), std::system_error);
    directory_.add({"session.txt = kept"});
    EXPECT_THROW(begin({.record = file_}), std::system_error);
    EXPECT_EQ(textIn(file_), "kept");
}

TEST_F(SessionTest, ARecordingWhoseFileIsGoneIsToldOnceAndGoesOnInAnother) {
    session_->startRecording(file_);
    session_->letPass(1s);
    std::filesystem::remove(file_);
    for (int i = 0; i < 3; ++i) session_->letPass(1s);
    EXPECT_EQ(warnings_, std::vector<std::string>{file_ + ": The file was removed"});
    EXPECT_TRUE(session_->hasRecordingStopped());
    EXPECT_FALSE(session_->isRecording());
    click(channel(1).muteButton);
    session_->continueRecording(directory_.path());
    EXPECT_EQ(warnings_.back(), directory_.path().string() + ": Is a directory");
    session_->continueRecording(file_);
    EXPECT_TRUE(session_->isRecording());
    session_->letPass(1s);
    session_->stopRecording();
    EXPECT_EQ(said_, "The session is recorded");
    EXPECT_TRUE(textIn(file_).ends_with("wait 4000\nclick Command12\n# event Mute 1\nwait 1000\n"));
}

TEST_F(SessionTest, WhatIsNotRecordedIsNotSaidToBe) {
    const auto stop = [&] { session_->stopRecording(); };
    const auto letPass = [&] { session_->letPass(1s); };
    const auto remove = [&] { std::filesystem::remove(file_); };
    const auto fillMemory = [&] {
        remove();
        letPass();
        for (int i = 0; i < 20; ++i) panel().AggiugiTesto(String(1'000'000, u'x'));
        letPass();
        EXPECT_TRUE(session_->hasRecordingStopped());
        said_.clear();
        session_->continueRecording(file_);
    };
    const auto truncate = [&] { std::filesystem::resize_file(file_, 3); };
    const auto truncateAndLetPass = [&] {
        truncate();
        letPass();
        EXPECT_TRUE(session_->hasRecordingStopped());
        said_.clear();
    };
    struct Row {
        std::vector<std::string> warnings;
        std::function<void()> act;
        std::function<void()> end;
    };
    const std::string lost = ": No more can be kept";
    const std::string removed = ": The file was removed";
    const std::string changed = ": Another program has changed the file";
    for (const auto& [warnings, act, end] :
         {Row{{removed}, remove, stop}, Row{{removed, lost, lost}, fillMemory, letPass},
          Row{{changed}, truncate, stop}, Row{{changed, changed}, truncateAndLetPass, stop}}) {
        session_->startRecording(file_);
        said_.clear();
        act();
        end();
        EXPECT_EQ(said_, "");
        for (std::string& warning : warnings_) warning.erase(0, file_.size());
        EXPECT_EQ(std::exchange(warnings_, {}), warnings);
        EXPECT_FALSE(session_->isRecording() || session_->hasRecordingStopped());
    }
}

TEST_F(SessionTest, WhatCannotBeReplayedInTimeOrWithoutHarmEndsAReplay) {
    const std::string picture = directory_.path() / "picture.png";
    const std::pair<std::string, const char*> rows[] = {
        {"shot \"" + picture + "\"\n", "session.txt:1:1: shot is not for here"},
        {"on Mute shot \"" + picture + "\"\n", "session.txt:1:9: shot is not for here"},
        {'#' + std::string(3'000'000, 'x') + "\nclick Command12\n",
         "session.txt:1:1: the line is too long"},
        {"new\nlet Mute 2 true\n  jump\nlet Mute 3 true\n", "session.txt:3:3: "},
        {"let TimerVirtualTemp12 true\nmeanwhile wait 2147483647\nclick Command12\n", ""},
    };
    for (const auto& [script, complaint] : rows) {
        warnings_.clear();
        replay(script);
        letReplayEnd();
        ASSERT_EQ(warnings_.size(), 1U) << complaint;
        EXPECT_TRUE(warnings_[0].starts_with(complaint)) << warnings_[0];
        EXPECT_EQ(panel().Mute(3), kFalse);
    }
    EXPECT_FALSE(std::filesystem::exists(picture));
}

TEST_F(SessionTest, AFreshPanelIsReadOnlyAsThePersonWantsItButForAReplays) {
    for (const bool isWanted : {true, false}) {
        begin({.isReadOnly = isWanted});
        panel().ReadOnly(!isWanted);
        owner_.renew();
        EXPECT_EQ(session_->isReadOnly(), isWanted);
        replay("new\nwait 1\n");
        EXPECT_FALSE(session_->isReadOnly());
        letReplayEnd();
        EXPECT_EQ(session_->isReadOnly(), isWanted);
        session_->setReadOnly(!isWanted);
        owner_.renew();
        EXPECT_EQ(session_->isReadOnly(), !isWanted);
    }
}

TEST_F(SessionTest, AnErrorThatNoCallerWaitsForIsAmongTheEvents) {
    struct Saboteur final : Runtime::OperationObserver {
        void before(const Runtime::Operation&) override { throw Error(7, "Gone"); }
    } saboteur;
    session_->station().log().clear();
    click(channel(1).muteButton);
    store().observeWith(&saboteur);
    click(channel(1).negative.option);
    store().observeWith(nullptr);
    EXPECT_EQ(session_->station().log().lines(),
              (std::deque<std::string>{"event Mute 1", "! 7 Gone"}));
}

TEST_F(SessionTest, TheHourglassEndsWhenTheAmplifierHasSpokenOrWillNot) {
    const auto isBusy = [this] { return store().pointer() == Widgets::Pointer::hourglass; };
    const auto beBusy = [this] { store().mousePointer().setPointer(Widgets::Pointer::hourglass); };
    session_->connectSimulator();
    session_->letPass(2s);
    beBusy();
    session_->letPass(1s);
    session_->letPass(1s);
    EXPECT_FALSE(isBusy());
    session_->simulator()->set(Simulator::Fault::linkLoss, true);
    session_->letPass(25ms);
    beBusy();
    session_->letPass(1s);
    EXPECT_TRUE(isBusy());
    for (int i = 0; i < 4; ++i) session_->letPass(1s);
    EXPECT_FALSE(isBusy());
    session_->connectNothing();
    beBusy();
    session_->letPass(25ms);
    EXPECT_FALSE(isBusy());
}

}  // namespace
}  // namespace Orvo::Manager
