#include "Script/recorder.h"
#include "Script/session.h"
#include "Script/store_panel.h"
#include "Support/approved.h"
#include "Support/bench.h"
#include "Support/memory.h"
#include "Support/temporary_directory.h"

namespace Orvo::Tests {
namespace {

using Lines = std::vector<std::string>;

// Answers that there was no memory, and goes on.
class FailingSession {
public:
    template <class Act>
    void attempt(const Act& act) {
        act(session_);
    }

    void expectAfter(bool hasFailed) {
        ASSERT_EQ(hasFailed_, hasFailed);
        lines_.emplace();
        for (const char* line : {"new", "on Mute call AggiugiTesto \"heard\"", "click Command11",
                                 "get IdDevice", "call ClearTest 1"}) {
            session_.run(line);
        }
        ASSERT_EQ(*lines_, (Lines{"ok", "ok", "event Mute 2", "  ok", "ok", "= 1",
                                  "? nothing takes \"1\""}));
    }

private:
    void hear(std::string_view line) {
        hasFailed_ = hasFailed_ || line.ends_with("! 7 Out of memory");
        if (lines_) lines_->emplace_back(line);
    }

    Script::StorePanel owner_;
    bool hasFailed_ = false;
    std::optional<Lines> lines_;
    Script::Session session_{owner_, owner_, {}, [this](std::string_view line) { hear(line); }};
};

TEST(OutOfMemory, EndsACommandAndTheSessionGoesOn) {
    for (const char* line : {"new", "get IdDevice", "on Mute call AggiugiTesto \"a long line\"",
                             "click Command11", "key List1 18", "meanwhile let Mute 1 true"}) {
        SCOPED_TRACE(line);
        failEveryAllocation<FailingSession>([&](Script::Session& session) { session.run(line); });
    }
}

// Writes down what happens, and nothing else, or says that it hasn't.
class FailingRecording {
public:
    template <class Act>
    void attempt(const Act& act) {
        try {
            act(owner_);
        } catch (...) {
            isOld_ = true;
        }
    }

    void expectAfter(bool hasFailed) {
        const auto& failure = recorder_.file().failure();
        ASSERT_EQ(hasFailed, isOld_ || failure == path_ + ": Out of memory");
        ASSERT_FALSE(isOld_ && textIn(path_).find("new") != std::string::npos);
        owner_.panel().Mute(1, true);
        owner_.store().perform(Deed::click(channel(1).muteButton));
    }

private:
    TemporaryDirectory directory_;
    std::string path_ = (directory_.path() / "recorded").string();
    Script::StorePanel owner_;
    bool isOld_ = false;
    Script::Recorder recorder_{Script::RecordFile(path_, Script::Existing::refused), owner_,
                               Script::Answers::inFull};
};

TEST(OutOfMemory, EndsARecordingWhichSaysSo) {
    failEveryAllocation<FailingRecording>([](Script::StorePanel& owner) {
        owner.store().advance(std::chrono::milliseconds(5));
        owner.panel().VolumeSlider(1, 4);
        owner.store().perform(Deed::slide(channel(1).volumeSlider, 7));
    });
    failEveryAllocation<FailingRecording>([](Script::StorePanel& owner) { owner.renew(); });
}

}  // namespace
}  // namespace Orvo::Tests
