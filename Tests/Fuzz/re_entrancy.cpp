#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

#include "Fuzz/anything.h"
#include "Orvo/core/call_listener.h"
#include "Orvo/core/marvane_assistant.h"
#include "Orvo/store/operation.h"
#include "Orvo/store/store.h"

// Everything from within everything: handlers, prompts, listeners and error handlers that call
// members, do what a person does, come and go, throw, and release the panel. Nobody hears of
// anything whose connection has ended, each call is told of by its beginning and by its end, a
// released panel touches no widget, but for a call that was announced before, and nothing but
// errors escapes.
namespace Orvo::Fuzz {
namespace {

constexpr int kDeepestStep = 6;

class Crowd;

/// A panel with its widgets, and all that is connected to it.
class Visited final : Runtime::OperationObserver, CallListener, Runtime::Prompter {
public:
    explicit Visited(Crowd& crowd) : crowd_(crowd) {
        store_->observeWith(this);
        store_->promptWith(this);
    }
    ~Visited() override {
        release();
        store_->observeWith(nullptr);
    }
    Visited(const Visited&) = delete;
    Visited& operator=(const Visited&) = delete;

    /// Null once it is released.
    MarvaneAssistant* panel() { return panel_.get(); }
    Runtime::Store& store() { return *store_; }
    void release() { const auto released = std::exchange(panel_, nullptr); }

    void connect();
    void disconnect(std::size_t which) {
        if (which >= ears_.size()) return;
        const auto ear = ears_[which];
        ear->isConnected = false;
        ear->connection.disconnect();
    }
    void listen() {
        calls_.clear();
        listening_ = panel_->listen(*this);
    }

private:
    struct Ear final : MarvaneAssistantEvents {
        explicit Ear(Visited& owner) : visited(owner) {}
        void OnOff() override { visited.hear(*this); }
        void Mute(Integer& channel) override { visited.hear(*this, channel); }
        void VolumeChange(Integer& channel, Integer& volume) override {
            visited.hear(*this, channel, volume);
        }
        void SetTemp(Integer& channel, Integer& value) override {
            visited.hear(*this, channel, value);
        }

        Visited& visited;
        bool isConnected = true;
        Connection connection;
    };

    void before(const Runtime::Operation& /*operation*/) override {
        expect(panel_ != nullptr || isCallToEnd_, "a released panel has touched a widget");
    }
    void called(const Member& member, std::span<const Value> arguments) override;
    void returned(const Member& member, const Value& /*result*/) override { end(member); }
    void failed(const Member& member, const Error& /*error*/) override { end(member); }
    std::optional<String> ask(const Widgets::Question& question) override;

    // One that was under way when the listener came is not known.
    void end(const Member& member) {
        if (calls_.empty()) return;
        expect(calls_.back() == &member, "the end of another call", member.name);
        calls_.pop_back();
    }

    void hear(const Ear& ear, auto&... arguments);

    Crowd& crowd_;
    std::shared_ptr<Runtime::Store> store_ = Runtime::Store::create();
    std::unique_ptr<MarvaneAssistant> panel_ = std::make_unique<MarvaneAssistant>(store_);
    std::vector<std::shared_ptr<Ear>> ears_;
    std::vector<const Member*> calls_;
    bool isCallToEnd_ = false;  // whose beginning was told of when the panel was released
    Connection listening_;
};

class Crowd {
public:
    explicit Crowd(std::string_view input) : bytes(input) {}

    void run() {
        renew();
        while (!bytes.isAtEnd()) step();
    }

    /// In the midst of something.
    void steps() {
        if (depth_ == kDeepestStep) return;
        ++depth_;
        for (std::size_t count = bytes.below(3); count > 0; --count) step();
        --depth_;
    }

    Bytes bytes;

private:
    void renew() { panels_.push_back(std::make_unique<Visited>(*this)); }

    void step() {
        Visited& visited = *panels_.back();
        switch (bytes.below(12)) {
            case 0:
                return visited.store().advance(std::chrono::milliseconds(bytes.below(4000)));
            case 1:
                return visited.connect();
            case 2:
                return visited.disconnect(bytes.below(8));
            case 3:
                return visited.listen();
            case 4:
                if (bytes.maybe()) visited.release();
                return renew();
            case 5:
                return visited.panel()->setErrorHandler([this](const Error&) { steps(); });
            case 6:
                return call(visited);
            case 7:
                static_cast<void>(
                    visited.panel()->invoke(bytes.oneOf(kMembers).dispatchId, MemberKind::get));
                return;
            default:
                visited.store().perform(anyDeed(bytes));
        }
    }

    void call(Visited& visited) {
        const Member& member = bytes.oneOf(kMembers);
        try {
            member.call(*visited.panel(), anyArguments(bytes, member));
        } catch (const Error&) {
            // As a host would hear it.
        }
    }

    int depth_ = 0;
    std::vector<std::unique_ptr<Visited>> panels_;
};

void Visited::connect() {
    const auto ear = std::make_shared<Ear>(*this);
    ears_.push_back(ear);
    if (crowd_.bytes.maybe()) {
        ear->connection = panel_->connect(*ear);
    } else {
        // It also ends another one when it ends.
        const auto other = crowd_.bytes.maybe() ? ears_.front() : nullptr;
        ear->connection = panel_->connect(
            [this, &ear = *ear, held = std::shared_ptr<void>(nullptr, [other](void*) {
                                    if (other != nullptr) other->connection.disconnect();
                                })](Long, std::span<Value> arguments) {
                hear(ear);
                for (Value& argument : arguments) argument = anyValue(crowd_.bytes);
            });
    }
}

void Visited::hear(const Ear& ear, auto&... arguments) {
    expect(panel_ != nullptr && ear.isConnected, "heard by somebody whose connection has ended");
    ((arguments = crowd_.bytes.number<Integer>()), ...);
    crowd_.steps();
    if (crowd_.bytes.below(8) == 0) throw std::runtime_error("of the host's own");
}

void Visited::called(const Member& member, std::span<const Value> /*arguments*/) {
    expect(panel_ != nullptr, "a call was told of by a released panel");
    calls_.push_back(&member);
    crowd_.steps();
    isCallToEnd_ = panel_ == nullptr;
}

std::optional<String> Visited::ask(const Widgets::Question& question) {
    crowd_.steps();
    if (crowd_.bytes.below(8) == 0) throw Widgets::PromptWithdrawn();
    if (question.title.empty()) return u"530284";
    return crowd_.bytes.maybe() ? std::optional(anyText(crowd_.bytes)) : std::nullopt;
}

}  // namespace

void attackFromWithin(std::string_view input) { Crowd(input).run(); }

}  // namespace Orvo::Fuzz
