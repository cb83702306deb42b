#include <array>
#include <cerrno>
#include <chrono>
#include <memory>
#include <string>
#include <utility>

#include <sys/socket.h>

#include "Fuzz/anything.h"
#include "Manager/Link/link_device.h"
#include "Manager/Station/station.h"
#include "Script/file_descriptor.h"
#include "Script/recordings.h"
#include "Script/store_panel.h"
#include "Script/words.h"
#include "Support/socket_stream.h"

// What a device sends, cut anywhere, while the person in front does something. Each command has
// one closing line; where the bytes are cut makes no difference; read-only mode that the person has
// set stays.
namespace Orvo::Fuzz {
namespace {

using namespace std::chrono_literals;
using Script::FileDescriptor;

// No text has such a byte.
constexpr char kPersonsTurn = '\xFF';

/// A device, and the person in front of the panel that it is connected to.
class Talk {
public:
    Talk() {
        station_.connect([this] {
            return std::make_unique<Manager::LinkDevice>(
                owner_, Manager::LinkAddress{"/dev/link"}, [this] { return isLocked_; },
                [this](const Manager::LinkAddress&) { return open(); },
                [] { return std::chrono::steady_clock::time_point(); });
        });
        station_.advance(0ms);
    }

    void lock() {
        isLocked_ = true;
        owner_.panel().ReadOnly(true);
    }

    void send(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t sent = ::send(device_.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
            if (sent > 0) bytes.remove_prefix(static_cast<std::size_t>(sent));
            isCutOff_ = isCutOff_ || (sent < 0 && errno != EAGAIN);
            if (isCutOff_) return;
            hearAnswers();
        }
    }

    void act(Bytes& bytes) {
        if (bytes.below(4) == 0) {
            lock();
        } else if (bytes.maybe()) {
            owner_.store().advance(std::chrono::milliseconds(bytes.below(4000)));
        } else {
            owner_.store().perform(anyDeed(bytes));
        }
        hearAnswers();
    }

    [[nodiscard]] bool isCutOff() const { return isCutOff_; }
    [[nodiscard]] const std::string& answers() const { return answers_; }
    std::string state() { return Tests::stateOf(owner_); }

private:
    std::unique_ptr<Manager::ByteStream> open() {
        auto [near, far] = Tests::SocketStream::makePair();
        device_ = std::move(far);
        return std::move(near);
    }
    void hearAnswers() {
        std::array<char, 4096> piece{};
        for (ssize_t count = 1; count > 0;) {
            station_.advance(0ms);
            count = ::recv(device_.get(), piece.data(), piece.size(), 0);
            isCutOff_ = isCutOff_ || count == 0;
            if (count > 0) answers_.append(piece.data(), static_cast<std::size_t>(count));
        }
        const bool isLocked = owner_.panel().ReadOnly() == Boolean(true);
        expect(!isLocked_ || isLocked, "the device has ended read-only mode", answers_);
    }

    bool isLocked_ = false;
    bool isCutOff_ = false;
    std::string answers_;
    Script::StorePanel owner_;
    Connection renewals_ = owner_.onRenewed([this] {
        if (isLocked_) owner_.panel().ReadOnly(true);
    });
    FileDescriptor device_;
    Manager::Station station_{owner_};
};

bool isCommand(std::string_view line) {
    try {
        return !Script::split(line).empty();
    } catch (const Script::Misunderstood&) {
        return true;
    }
}

int count(bool (*isOne)(std::string_view line), std::string_view text) {
    int count = 0;
    forLines(text, [&](std::string_view line) { count += isOne(line) ? 1 : 0; });
    return count;
}

}  // namespace

void attackOverLink(std::string_view input) {
    Talk cut;
    Talk whole;
    std::string sent;
    if (input.size() % 2 == 1) {
        cut.lock();
        whole.lock();
    }
    for (Bytes bytes(input); !bytes.isAtEnd();) {
        const auto part = bytes.takeUntil(kPersonsTurn);
        sent += part;
        whole.send(part);
        for (Bytes pieces(part); !pieces.isAtEnd();) cut.send(pieces.take(1 + part.size() % 97));
        Bytes same = bytes;
        cut.act(bytes);
        whole.act(same);
    }
    sent += '\n';
    cut.send("\n");
    whole.send("\n");
    if (cut.isCutOff() || whole.isCutOff()) return;
    expect(cut.answers() == whole.answers(), "answers that depend on the cuts", cut.answers());
    expect(cut.state() == whole.state(), "a panel that depends on the cuts", cut.answers());
    expect(count(isClosing, cut.answers()) == count(isCommand, sent), "not one closing line each",
           cut.answers());
}

}  // namespace Orvo::Fuzz
