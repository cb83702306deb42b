#pragma once

#include <algorithm>
#include <chrono>
#include <cstring>
#include <system_error>

#include <gtest/gtest.h>
#include <unistd.h>

#include "Manager/Link/link_device.h"
#include "Manager/Station/station.h"
#include "Support/owned_panel.h"
#include "Support/socket_stream.h"

namespace Orvo::Manager {

using namespace std::chrono_literals;

/// A station whose link leads to this test.
class LinkTest : public Tests::OwnedPanel {
protected:
    void connectLink() {
        station_.connect([this] {
            return std::make_unique<LinkDevice>(
                owner_, LinkAddress{"/dev/link"}, [this] { return isLocked_; },
                [this](const LinkAddress&) { return open(); },
                [this] { return now_ += betweenLooks_; });
        });
    }

    void goOnline() {
        connectLink();
        station_.advance(25ms);
        ASSERT_TRUE(isOnline());
    }
    [[nodiscard]] bool isOnline() const { return other_.get() >= 0; }

    void hangUp() { other_ = Script::FileDescriptor(); }

    /// As much as fits.
    std::size_t send(const std::string& text) const {
        return std::size_t(
            std::max<ssize_t>(0, ::send(other_.get(), text.data(), text.size(), MSG_NOSIGNAL)));
    }

    std::string received() const {
        std::string text;
        std::string piece(65536, ' ');
        for (ssize_t count = 0; (count = ::read(other_.get(), piece.data(), piece.size())) > 0;) {
            text.append(piece, 0, std::size_t(count));
        }
        return text;
    }

    /// All up to this end, or what there is after a long time.
    std::string awaited(const std::string& end) {
        std::string text;
        for (int i = 0; i < 1000 && !text.ends_with(end); ++i) {
            station_.advance(25ms);
            text += received();
        }
        return text;
    }

    std::string ask(const std::string& text) {
        send(text);
        station_.advance(25ms);
        return received();
    }

    std::error_code trouble_;  // when set, there is nothing to open
    Script::FileDescriptor other_;
    // A clock that moves by so much whenever it is looked at.
    std::chrono::steady_clock::time_point now_;
    std::chrono::milliseconds betweenLooks_{0};
    bool isLocked_ = false;  // read-only, by whoever is in front
    Station station_{owner_};

private:
    std::unique_ptr<ByteStream> open() {
        if (trouble_) throw std::system_error(trouble_);
        auto [near, far] = Tests::SocketStream::makePair();
        other_ = std::move(far);
        return std::move(near);
    }
};

}  // namespace Orvo::Manager
