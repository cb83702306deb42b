#include "Manager/Session/manager_session.h"

#include "Script/recordings.h"
#include "Support/owned_panel.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;
using namespace Tests;

class SessionTest : public OwnedPanel, public SessionObserver {
protected:
    void begin(const SessionSettings& settings) {
        session_.reset();
        owner_.renew();
        session_.emplace(owner_, owner_, settings, *this);
    }

    void say(const std::string& message) override { said_ = message; }
    void warn(const Failure& failure) override { warnings_.push_back(failure.details); }
    void recordingStopped(const Failure& failure) override { warn(failure); }

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

    TemporaryDirectory directory_;
    std::string file_ = directory_.path() / "session.txt";
    std::vector<std::string> warnings_;
    std::string said_;
    std::optional<ManagerSession> session_{std::in_place, owner_, owner_, SessionSettings{}, *this};
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
    session_->startRecording(file_);
    EXPECT_FALSE(isLit(kCommon.linkLamp)) << "a fresh panel";
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

TEST_F(SessionTest, AReplayEndsWithWhatItDoesNotUnderstand) {
    replay("let Mute 1 true\nnew\nlet Mute 2 true\n  jump\nlet Mute 3 true\n");
    letReplayEnd();
    ASSERT_EQ(warnings_.size(), 1U);
    EXPECT_TRUE(warnings_[0].starts_with("session.txt:4:3: "));
    const std::vector<Boolean> muted{panel().Mute(1), panel().Mute(2), panel().Mute(3)};
    EXPECT_EQ(muted, (std::vector{kFalse, kTrue, kFalse}));
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
    session_->startRecording(file_);
    std::filesystem::remove(file_);
    said_.clear();
    session_->stopRecording();
    EXPECT_EQ(said_, "");
    EXPECT_EQ(warnings_, std::vector<std::string>{file_ + ": The file was removed"});
}

TEST_F(SessionTest, WhatCannotBeReplayedInTimeOrWithoutHarmEndsAReplay) {
    const std::string picture = directory_.path() / "picture.png";
    const std::pair<std::string, const char*> rows[] = {
        {"shot \"" + picture + "\"\n", "session.txt:1:1: shot is not for here"},
        {"on Mute shot \"" + picture + "\"\n", "session.txt:1:9: shot is not for here"},
        {'#' + std::string(3'000'000, 'x') + "\nclick Command12\n",
         "session.txt:1:1: the line is too long"},
        {"let TimerVirtualTemp12 true\nmeanwhile wait 2147483647\nclick Command12\n", ""},
    };
    for (const auto& [script, complaint] : rows) {
        warnings_.clear();
        replay(script);
        letReplayEnd();
        ASSERT_EQ(warnings_.size(), 1U) << complaint;
        EXPECT_TRUE(warnings_[0].starts_with(complaint)) << warnings_[0];
    }
    EXPECT_FALSE(std::filesystem::exists(picture));
}

TEST_F(SessionTest, ARecordingStaysReadOnlyAndOnItsTab) {
    session_->setReadOnly(true);
    store().perform(Runtime::Deed::tab(Layout::kTabs.id, 2));
    session_->startRecording(file_);
    EXPECT_TRUE(session_->isReadOnly());
    EXPECT_EQ(store().get<Runtime::StoredTabs>(Layout::kTabs.id).state().current, 2);
}

TEST_F(SessionTest, AFreshPanelIsReadOnlyWhenTheSettingsSaySoButForAReplays) {
    begin({.isReadOnly = true});
    session_->startRecording(file_);
    session_->stopRecording();
    EXPECT_NE(textIn(file_).find("new\nlet ReadOnly -1\n"), std::string::npos);
    replay("new\nwait 1\n");
    EXPECT_FALSE(session_->isReadOnly());
    letReplayEnd();
    EXPECT_TRUE(session_->isReadOnly());
}

TEST_F(SessionTest, AFreshPanelIsReadOnlyAsThePersonWantsItWhateverTheHostSaid) {
    for (const bool isWanted : {true, false}) {
        session_->setReadOnly(isWanted);
        panel().ReadOnly(!isWanted);
        owner_.renew();
        EXPECT_EQ(session_->isReadOnly(), isWanted);
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
