#include <fstream>
#include <map>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Manager/Session/session_bench.h"

namespace Orvo::Manager {
namespace {

using Simulator::Fault;
using Widgets::Kind;

/// What a control shows of its own stands for.
enum class Meaning : std::uint8_t { power, volume, thermalTest };

/// A session with a pipe that a link can lead to.
class UnansweredTest : public SessionBench {
protected:
    UnansweredTest() { ::mkfifo(pipe_.c_str(), 0600); }
    ~UnansweredTest() override { hangUp(); }

    void pass(std::chrono::milliseconds time) {
        for (; time > 0ms; time -= 25ms) {
            if (isTalking_) write("let Signal 1 -1\n");
            session_->letPass(25ms);
        }
    }

    void run() {
        session_->connectSimulator();
        pass(3s);
    }
    void runWith(Fault fault) {
        run();
        session_->simulator()->set(fault, true);
    }
    void link(const std::string& words) {
        session_->connectLink(LinkAddress{pipe_});
        pass(50ms);
        other_ = ::open(pipe_.c_str(), O_WRONLY | O_NONBLOCK);
        write(words);
        pass(50ms);
    }
    void write(const std::string& words) const {
        ASSERT_EQ(::write(other_, words.data(), words.size()), ssize_t(words.size()));
    }
    void hangUp() {
        if (other_ >= 0) ::close(other_);
        other_ = -1;
    }

    Integer shown(Widgets::WidgetId widget) {
        if (Layout::kindOf(widget) == Kind::slider)
            return store().get<Runtime::StoredSlider>(widget).state().position;
        return Integer(store().get<Runtime::StoredCheck>(widget).state().value);
    }

    std::string pipe_ = directory_.path() / "link";
    int other_ = -1;
    bool isTalking_ = false;
};

constexpr auto kKnown =
    "let Connected -1\nlet PowerOn -1\nlet VolumeSlider 1 -6\nlet Volume 1 -6\n"
    "let VolumeSlider 2 -6\nlet VolumeSlider 3 -6\nlet VolumeSlider 4 -6\n";

Meaning meaningOf(Widgets::WidgetId widget) {
    if (Layout::kindOf(widget) == Kind::check) return Meaning::power;
    const auto isTests = [&](const auto& pair) { return pair.testSlider.id == widget; };
    return std::ranges::any_of(Layout::kPairs, isTests) ? Meaning::thermalTest : Meaning::volume;
}

// Check boxes and sliders are what shows something else as soon as it is worked. The others show a
// choice, such as an option, or nothing.
std::vector<Runtime::Deed> deedsThatShow(Widgets::WidgetId widget) {
    using Runtime::Deed;
    switch (Layout::kindOf(widget)) {
        case Kind::check:
            return {Deed::click(widget), Deed::activate(widget), Deed::key(widget, u' ')};
        case Kind::slider:
            return {Deed::slide(widget, 25), Deed::move(widget, 30), Deed::move(widget, 20)};
        default:
            return {};
    }
}

TEST_F(UnansweredTest, EveryControlShowsInTheEndWhatHolds) {
    using enum Meaning;
    struct Row {
        const char* failure;
        std::function<void()> prepare;
        std::vector<Meaning> unanswered{power, volume, thermalTest};
    };
    const Row rows[] = {
        {"nothing is connected", [] {}},
        {"nothing is connected any more", [&] { run(), session_->connectNothing(); }},
        {"the amplifier has not replied yet",
         [&] { session_->connectSimulator(), session_->simulator()->set(Fault::linkLoss, true); }},
        {"the link was lost", [&] { runWith(Fault::linkLoss), pass(1s); }},
        {"the link is lost and nobody knows", [&] { runWith(Fault::linkLoss); }},
        {"the amplifier refuses", [&] { runWith(Fault::mainsFailure), pass(1s); }, {power}},
        {"the link is not there", [&] { session_->connectLink(LinkAddress{"/dev/nowhere"}); }},
        {"the link is silent", [&] { link(""); }},
        {"the link has become silent", [&] { link(kKnown); }, {power, volume}},
        {"the link speaks of other things",
         [&] { link(kKnown), isTalking_ = true; },
         {power, volume}},
        {"the link refuses",
         [&] {
             link(std::string(kKnown) +
                  "on OnOff let PowerOn -1\n"
                  "on VolumeChange let Volume 1 -6\n");
         },
         {power, volume}},
        {"the link was hung up", [&] { link(kKnown), hangUp(), pass(50ms); }},
        {"a replay waits",
         [&] {
             std::ofstream(file_) << kKnown << "wait 3600000\n";
             session_->startReplay(file_), pass(50ms);
         },
         {power, volume}},
    };
    std::map<Meaning, int> worked;
    for (const Row& row : rows) {
        for (Widgets::WidgetId widget = 0; widget < Layout::kWidgetCount; ++widget) {
            for (const Runtime::Deed& deed : deedsThatShow(widget)) {
                const Meaning meaning = meaningOf(widget);
                if (std::ranges::count(row.unanswered, meaning) == 0) continue;
                hangUp();
                isTalking_ = false;
                begin();
                row.prepare();
                const Integer known = shown(widget);
                if (!store().perform(deed)) continue;
                pass(3s);
                EXPECT_EQ(shown(widget), known)
                    << row.failure << ": " << Layout::describe(widget).name;
                ++worked[meaning];
            }
        }
    }
    for (const Meaning meaning : {power, volume, thermalTest}) EXPECT_GT(worked[meaning], 20);
}

}  // namespace
}  // namespace Orvo::Manager
