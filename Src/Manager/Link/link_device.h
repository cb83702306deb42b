#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Manager/Link/byte_stream.h"
#include "Manager/Link/line_splitter.h"
#include "Manager/Station/device.h"
#include "Script/session.h"

namespace Orvo::Manager {

/// A device or program at the other end of a link, which speaks the host's side of panel script
/// and is answered in it. It says itself what the panel shows, `Connected` included; when the link
/// breaks the panel shows that, what `on` has said is forgotten, and the link is tried again.
///
/// Nothing that the other side does holds up the window: it is heard for a moment at a time, what
/// it answers an event with is ended, a line beyond LineSplitter::kLongestLine is refused as a
/// whole, and whoever doesn't read the answers is cut off. All that is kept of what it said, the
/// panel's message log included, has Script::kMostKept bytes; error 7 beyond. What the person in
/// front has made read-only stays so: error 70.
class LinkDevice final : public Device, private Script::Supervisor {
public:
    static constexpr std::chrono::milliseconds kBetweenTries{1000};
    static constexpr std::size_t kMostUnread = 1 << 20;  // bytes

    /// What the time is by which the other side is heard for a moment.
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    /// Whether the panel is to stay read-only, whoever calls.
    using ReadOnlyLock = std::function<bool()>;

    LinkDevice(Script::PanelOwner& owner, LinkAddress address, ReadOnlyLock isLocked,
               OpenStream open, Clock clock = std::chrono::steady_clock::now);

    [[nodiscard]] std::string name() const override;
    void advance(std::chrono::milliseconds elapsed) override;
    [[nodiscard]] std::optional<std::chrono::milliseconds> sinceLastWord() const override {
        return silence_;
    }

    [[nodiscard]] bool isOpen() const { return stream_ != nullptr; }
    /// Why it could not be opened, or is open no more, in words; empty before the first try.
    [[nodiscard]] const std::string& trouble() const { return trouble_; }

private:
    void permit(const Script::Call& call) override;
    [[nodiscard]] std::size_t keptElsewhere() const override;
    [[nodiscard]] std::chrono::steady_clock::time_point now() override { return clock_(); }

    void tryToOpen();
    void close();
    void listen();
    bool hear();
    void answer(const LineSplitter::Line& line);
    void say(std::string_view line);
    void flush();

    Script::PanelOwner& owner_;
    const LinkAddress address_;
    const ReadOnlyLock isLocked_;
    const OpenStream open_;
    const Clock clock_;
    // Hears the panel's events from the beginning, as every device does.
    Script::Session session_;
    std::optional<std::chrono::milliseconds> silence_;  // none before a link's first word
    std::chrono::milliseconds untilTry_{0};
    std::string trouble_;

    // While the link is open.
    std::unique_ptr<ByteStream> stream_;
    LineSplitter lines_;
    std::string unsent_;
    bool isBroken_ = false;
    bool isListening_ = false;
};

}  // namespace Orvo::Manager
