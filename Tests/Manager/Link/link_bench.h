#pragma once

#include <algorithm>
#include <chrono>
#include <cstring>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "Manager/Link/link_device.h"
#include "Manager/Station/station.h"
#include "Support/owned_panel.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {

using namespace std::chrono_literals;

/// A station whose link leads to this test.
class LinkTest : public Tests::OwnedPanel {
protected:
    ~LinkTest() override {
        hangUp();
        if (listener_ >= 0) ::close(listener_);
    }

    void connectLink() { connectLink(path_); }
    void connectLink(const std::string& path) {
        station_.connect([this, path] {
            return std::make_unique<LinkDevice>(
                owner_, LinkAddress{path}, [this] { return isLocked_; },
                [this] { return now_ += betweenLooks_; });
        });
    }

    void listenOnSocket() {
        sockaddr_un name{};
        name.sun_family = AF_UNIX;
        std::strncpy(name.sun_path, path_.c_str(), sizeof name.sun_path - 1);
        listener_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0);
        ASSERT_EQ(::bind(listener_, reinterpret_cast<sockaddr*>(&name), sizeof name), 0);
        ASSERT_EQ(::listen(listener_, 1), 0);
    }

    /// The station has connected to the socket.
    void pickUp() {
        other_ = ::accept4(listener_, nullptr, nullptr, SOCK_NONBLOCK);
        ASSERT_GE(other_, 0);
    }

    void goOnline() {
        listenOnSocket();
        connectLink();
        station_.advance(25ms);
        pickUp();
    }

    void hangUp() {
        if (other_ >= 0) ::close(other_);
        other_ = -1;
    }

    /// As much as fits.
    std::size_t send(const std::string& text) const {
        return std::size_t(std::max<ssize_t>(0, ::write(other_, text.data(), text.size())));
    }

    std::string received() const {
        std::string text;
        std::string piece(65536, ' ');
        for (ssize_t count = 0; (count = ::read(other_, piece.data(), piece.size())) > 0;) {
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

    Tests::TemporaryDirectory directory_;
    std::string path_ = directory_.path() / "link";
    int listener_ = -1;
    int other_ = -1;
    // A clock that moves by so much whenever it is looked at.
    std::chrono::steady_clock::time_point now_;
    std::chrono::milliseconds betweenLooks_{0};
    bool isLocked_ = false;  // read-only, by whoever is in front
    Station station_{owner_};
};

}  // namespace Orvo::Manager
