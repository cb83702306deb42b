#include "Script/recorder.h"

#include <functional>

#include "Script/recordings.h"
#include "Support/owned_panel.h"
#include "Support/temporary_directory.h"

namespace Orvo::Script {
namespace {

using namespace std::chrono_literals;
using namespace Tests;
using Runtime::Deed;
using Runtime::MouseButton;
using Runtime::ReleasedWhere;

class RecorderTest : public OwnedPanel {
protected:
    /// What is in the file after `act`, but for the heading, the recording still going on.
    std::string recorded(Answers answers, const std::function<void()>& act) {
        const Recorder recorder(RecordFile(file_, Existing::overwritten), owner_, answers);
        const std::string heading = textIn(file_);
        act();
        EXPECT_NE(heading.find("\nchronological\n"), std::string::npos) << heading;
        return textIn(file_).substr(heading.size());
    }

    void enterInformation() { store().perform(Deed::key(kCommon.log, 18)); }

    TemporaryDirectory directory_;
    std::string file_ = directory_.path() / "record.txt";
};

TEST_F(RecorderTest, WhatIsTypedAtPromptsStandsBelowTheirCauseOrIsKeptSecret) {
    const std::pair<Answers, const char*> rows[] = {
        {Answers::inFull,
         "key List1 18\n"
         "answer \"530284\"\nanswer \"A 1\"\nanswer \"B 2\"\nanswer \"Näytös\"\n# event "
         "GeneralInformations 1 \"Näytös\" \"A 1\" \"B 2\"\n"},
        {Answers::asCancelled,
         "key List1 18\nanswer cancel\n# event GeneralInformations …\npointer 11\n"
         "set Command1 enabled true\n"},
    };
    for (const auto& [answers, text] : rows) {
        Typist typist;
        store().promptWith(&typist);
        EXPECT_EQ(recorded(answers, [this] { enterInformation(); }), text);
    }
}

TEST_F(RecorderTest, WritesWhatThePersonDoesAndThePanelTakes) {
    const std::string text = recorded(Answers::inFull, [this] {
        input().press(channel(1).muteButton);
        store().advance(70ms);
        input().release(channel(1).muteButton);
        input().press(kCommon.powerButton, MouseButton::right);
        input().release(kCommon.powerButton, MouseButton::right, ReleasedWhere::elsewhere);
        input().press(channel(2).volumeSlider);
        store().perform(Deed::move(channel(2).volumeSlider, 999));
        store().perform(Deed::move(channel(2).volumeSlider, 999));
        input().release(channel(2).volumeSlider);
        store().perform(Deed::drop(channel(2).volumeSlider));
        store().perform(Deed::tab(kTabs, 7));
        store().perform(Deed::pick(kCommon.amplifierIds, u"no such item"));
        store().enable(kCommon.powerButton, false);
        click(kCommon.powerButton);
    });
    EXPECT_EQ(text,
              "wait 70\nclick Command12\n# event Mute 1\nrelease cmdOnOff right\n"
              "hold ZelvinSlider2\nslide ZelvinSlider2 30\n# event VolumeChange 2 -30\n"
              "hold ZelvinSlider2\ndrop ZelvinSlider2\n");
}

TEST_F(RecorderTest, CallsOfAHandlerAreMadeMeanwhile) {
    const std::string text = recorded(Answers::inFull, [this] {
        const auto host = panel().connect([this](Long, std::span<Value>) {
            panel().Mute(1, true);
            EXPECT_THROW(panel().VNPower(1, -5), Error);
        });
        click(channel(1).muteButton);
    });
    EXPECT_EQ(text,
              "click Command12\n# event Mute 1\n"
              "meanwhile let Mute 1 -1\nmeanwhile let VNPower 1 -5\n# ! 13 Type mismatch\n");
}

TEST_F(RecorderTest, WhatAFreshPanelCannotBeBroughtToIsTold) {
    EXPECT_EQ(errorOf([this] { panel().VNPower(1, -5); }), 13) << "the first digit is written";
    const Recorder recorder(RecordFile(file_, Existing::refused), owner_, Answers::inFull);
    EXPECT_TRUE(textIn(file_).ends_with(
        "\nchronological\n# not brought here: LED3 digit visible=true value=0\n"));
}

TEST_F(RecorderTest, TheFileIsCompleteWhileAPromptIsOpen) {
    struct Watch final : Typist {
        std::optional<String> ask(const Widgets::Question& question) override {
            look();
            return Typist::ask(question);
        }
        std::function<void()> look;
    } typist;
    std::string begun;
    typist.look = [&] {
        store().advance(5ms);
        begun += textIn(file_) + "---\n";
    };
    store().promptWith(&typist);
    recorded(Answers::inFull, [this] { enterInformation(); });
    EXPECT_NE(begun.find("key List1 18\nmeanwhile wait 5\nanswer \"530284\"\n---"),
              std::string::npos)
        << begun;
}

}  // namespace
}  // namespace Orvo::Script
