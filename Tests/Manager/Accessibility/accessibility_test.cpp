#include <array>
#include <functional>
#include <optional>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>
#include <QThread>

#include "Orvo/layout/layout.h"
#include "accessible_bus.h"

// The running program, as a screen reader on the same desktop finds it.
namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

bool waitUntil(const std::function<bool()>& isDone) {
    const QDeadlineTimer deadline(60s);
    while (!isDone()) {
        if (deadline.hasExpired()) return false;
        QCoreApplication::processEvents();
        QThread::msleep(20);
    }
    return true;
}

class AccessibilityTest : public testing::Test {
protected:
    AccessibilityTest() {
        program_.setProcessChannelMode(QProcess::ForwardedChannels);
        program_.start(MANAGER_PROGRAM, {"--simulate=42"});
        const auto isUp = [this] {
            for (int tab = 0; tab < kTabCount; ++tab) {
                pages_[std::size_t(tab)] = find("panel", captionOf(tab)).value_or(Accessible());
            }
            return says("Link", "lit");
        };
        if (!waitUntil(isUp)) ADD_FAILURE() << "the program doesn't come up";
    }
    ~AccessibilityTest() override {
        program_.kill();
        program_.waitForFinished();
    }

    /// The first below `top`, in depth, that has a name and a role.
    [[nodiscard]] std::optional<Accessible> find(const QString& role, const QString& name,
                                                 const Accessible& top) const {
        for (const Accessible& child : bus_.childrenOf(top)) {
            const QString itsRole = bus_.roleOf(child);
            if (itsRole == role && bus_.nameOf(child) == name) return child;
            const bool isSearched = itsRole != "combo box" && itsRole != "slider";
            if (auto found = isSearched ? find(role, name, child) : std::nullopt) return found;
        }
        return {};
    }
    [[nodiscard]] std::optional<Accessible> find(const QString& role, const QString& name) const {
        for (const Accessible& program : bus_.programs()) {
            if (bus_.nameOf(program) != "marvane-manager") continue;
            if (auto found = find(role, name, program)) return found;
        }
        return {};
    }

    static QString captionOf(int tab) {
        return QString::fromUtf16(Layout::kTabCaptions[std::size_t(tab)].data());
    }

    void toTab(int tab) {
        bus_.act(find("page tab", captionOf(tab)).value(), "Press");
        EXPECT_TRUE(waitUntil([&] { return bus_.is(pages_[std::size_t(tab)], State::showing); }));
    }

    /// What is on a page.
    [[nodiscard]] Accessible the(const QString& name) const {
        for (const Accessible& page : pages_) {
            for (const Accessible& thing : bus_.childrenOf(page)) {
                if (bus_.nameOf(thing) == name) return thing;
            }
        }
        return {};
    }
    [[nodiscard]] bool says(const QString& name, const QString& text) const {
        return bus_.descriptionOf(the(name)) == text;
    }

    static constexpr int kTabCount = 3;
    QProcess program_;
    AccessibleBus bus_;
    std::array<Accessible, kTabCount> pages_;
};

TEST_F(AccessibilityTest, ASliderThatIsSetMovesAndTheAmplifierFollows) {
    const Accessible slider = the("Volume channel 2");
    const Accessible readout = the("Volume readout channel 2");
    for (const int volume : {-20, -14}) {
        bus_.forget();
        bus_.setValue(slider, volume);
        EXPECT_TRUE(waitUntil([&] { return bus_.valueOf(slider) == volume; }));
        const QString shown = QString("%1 dB").arg(volume);
        EXPECT_TRUE(waitUntil([&] { return bus_.descriptionOf(readout) == shown; }));
        EXPECT_TRUE(waitUntil([&] { return bus_.hasHeard(readout, "accessible-description"); }));
        EXPECT_FALSE(bus_.valueOf(readout)) << "it would be offered to be increased";
        EXPECT_TRUE(waitUntil([&] { return bus_.hasHeard(slider, "accessible-value"); }));
    }
}

TEST_F(AccessibilityTest, AButtonThatIsPressedDoesWhatItSays) {
    toTab(2);
    const Accessible lamp = the("Mute lamp channel 3");
    EXPECT_EQ(bus_.descriptionOf(lamp), "dark");
    EXPECT_EQ(bus_.actionsOf(lamp), QStringList());
    bus_.act(the("Mute channel 3"), "Press");
    EXPECT_TRUE(waitUntil([&] { return bus_.descriptionOf(lamp) == "lit"; }));
    EXPECT_TRUE(waitUntil([&] { return bus_.hasHeard(lamp, "accessible-description"); }));

    const Accessible option = the("Negative input channel 4");
    bus_.act(option, "Press");
    EXPECT_TRUE(waitUntil([&] { return bus_.is(option, State::checked); }));
}

TEST_F(AccessibilityTest, ALostLinkIsReadOut) {
    Accessible link;
    EXPECT_TRUE(waitUntil([&] {
        link = find("alert message", "Link up").value_or(Accessible());
        return !link.path.isEmpty();
    }));
    bus_.act(find("menu item", "1 Link lost").value(), "Press");
    EXPECT_TRUE(waitUntil([&] { return bus_.nameOf(link) == "Link down"; }));
    EXPECT_TRUE(waitUntil([&] { return bus_.hasHeard(link, "showing"); }));
    EXPECT_TRUE(waitUntil([&] { return says("Link", "dark"); }));
}

}  // namespace
}  // namespace Orvo::Manager

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
