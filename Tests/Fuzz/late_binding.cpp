#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>

#include "Fuzz/anything.h"
#include "Orvo/core/event_table.h"
#include "Orvo/core/marvane_assistant.h"
#include "Orvo/service/block_heap.h"
#include "Orvo/store/operation.h"
#include "Orvo/store/store.h"
#include "Script/text_of.h"

// Members by dispatch id, with whatever arguments, on a machine and for a host that mean no good.
// A call has a result of the declared type or an error, and lets nothing escape; one that reaches
// no member does nothing; events carry what they declare; and the panel is of use afterwards.
namespace Orvo::Fuzz {
namespace {

void misbehave(Bytes& bytes) {
    switch (bytes.below(8)) {
        case 0:
            throw Error(bytes.number<Long>(), "of the host's own");
        case 1:
            throw std::runtime_error("of the standard library");
        case 2:
            throw std::bad_alloc();
        case 3:
            throw 4;
        default:
            return;
    }
}

/// Blocks that are too small or not there.
class HostileHeap final : public ProcessHeap {
public:
    explicit HostileHeap(Bytes& bytes) : bytes_(bytes) {}

    Long allocate(std::size_t size) override {
        constexpr std::size_t kRoom = 1 << 16;
        misbehave(bytes_);
        return size > kRoom || bytes_.below(8) == 0 ? 0 : heap_.allocate(size >> bytes_.below(3));
    }
    void release(Long address) override { heap_.release(address); }
    std::span<std::byte> bytesFrom(Long address) override {
        const auto block = heap_.bytesFrom(address);
        return block.first(std::min(block.size(), bytes_.below(1 << 16)));
    }

private:
    Bytes& bytes_;
    BlockHeap heap_;
};

/// Numbers, texts and addresses without any sense.
class HostileSpooler final : public PortSpooler {
public:
    explicit HostileSpooler(Bytes& bytes) : bytes_(bytes) {}

    bool enumPorts(const std::string& /*server*/, Long /*level*/, Long address,
                   std::span<std::byte> buffer, Long& needed, Long& count) override {
        misbehave(bytes_);
        const std::string_view content = bytes_.take(std::min(buffer.size(), bytes_.below(128)));
        std::ranges::transform(content, buffer.begin(), [](char c) { return std::byte(c); });
        if (buffer.size() >= kRecordSize && bytes_.maybe()) {
            const Long text = address + static_cast<Long>(bytes_.below(128));
            std::memcpy(buffer.data(), &text, sizeof text);
        }
        needed = bytes_.maybe() ? bytes_.number<Long>() : static_cast<Long>(bytes_.below(256));
        count = bytes_.maybe() ? bytes_.number<Long>() : static_cast<Long>(bytes_.below(4));
        return bytes_.maybe();
    }

private:
    Bytes& bytes_;
};

class HostileHost final : Runtime::OperationObserver, Runtime::Prompter {
public:
    explicit HostileHost(std::string_view input) : bytes_(input) {
        store_->observeWith(this);
        store_->promptWith(this);
        panel_.setErrorHandler([this](const Error&) { misbehave(bytes_); });
    }
    ~HostileHost() override { store_->observeWith(nullptr); }
    HostileHost(const HostileHost&) = delete;
    HostileHost& operator=(const HostileHost&) = delete;

    void run() {
        while (!bytes_.isAtEnd()) step();
        panel_.ReadOnly(true);
        expect(panel_.ReadOnly() == Boolean(true), "the panel is of no use any more");
    }

private:
    using Milliseconds = Runtime::Store::Milliseconds;

    void before(const Runtime::Operation& /*operation*/) override { ++operations_; }
    std::optional<String> ask(const Widgets::Question& /*question*/) override {
        if (bytes_.below(4) == 0) throw Widgets::PromptWithdrawn();
        return bytes_.maybe() ? std::optional(anyText(bytes_)) : u"530284";
    }

    void step() {
        switch (bytes_.below(8)) {
            case 0:
                store_->perform(anyDeed(bytes_));
                return;
            case 1:
                return store_->advance(Milliseconds(bytes_.number<Integer>()));
            case 2:
                return store_->catchUp(Milliseconds(bytes_.number<Long>()));
            case 3:
                return store_->runOn([time = bytes_.number<Long>()] { return Milliseconds(time); });
            default:
                return invoke();
        }
    }

    void invoke() {
        const Member& member = bytes_.oneOf(kMembers);
        if (bytes_.below(4) > 0) {
            return invoke(member.dispatchId, member.kind, anyArguments(bytes_, member));
        }
        std::vector<Value> arguments(bytes_.below(4));
        for (Value& argument : arguments) argument = anyValue(bytes_);
        const Long id = bytes_.maybe() ? member.dispatchId : bytes_.number<Long>();
        invoke(id, static_cast<MemberKind>(bytes_.below(3)), arguments);
    }

    void invoke(Long id, MemberKind kind, std::span<const Value> arguments) {
        const std::size_t before = operations_;
        const InvokeResult result = panel_.invoke(id, kind, arguments);
        if (result.error) {
            const bool isReached = std::ranges::count(kNotReached, result.error->number()) == 0;
            expect(isReached || operations_ == before, "done by no member");
            return;
        }
        expect(typeOf(result.value) == findMember(id, kind).result, "a result of another type",
               Script::textOf(result.value));
    }

    void hear(Long dispatchId, std::span<Value> arguments) {
        const bool isKnown = std::ranges::count(kEvents, dispatchId, &Event::dispatchId) == 1;
        expect(isKnown, "an unknown event");
        const auto parameters = eventWith(dispatchId).parameters();
        const bool fits = std::ranges::equal(arguments, parameters, {}, typeOf, &Parameter::type);
        expect(fits, "not the event's arguments", eventWith(dispatchId).name);
        for (Value& argument : arguments) argument = anyValue(bytes_);
        if (depth_ < kDeepest) {
            ++depth_;
            step();
            --depth_;
        }
        misbehave(bytes_);
    }

    static constexpr int kDeepest = 3;
    // Errors of calls that reach no member.
    static constexpr std::array<Long, 4> kNotReached{383, 394, 438, 450};

    Bytes bytes_;
    int depth_ = 0;
    std::size_t operations_ = 0;
    std::shared_ptr<Runtime::Store> store_ = Runtime::Store::create();
    MarvaneAssistant panel_{store_,
                            {.spooler = std::make_shared<HostileSpooler>(bytes_),
                             .heap = std::make_shared<HostileHeap>(bytes_)}};
    Connection sink_ = panel_.connect(
        [this](Long dispatchId, std::span<Value> arguments) { hear(dispatchId, arguments); });
};

}  // namespace

void attackLateBinding(std::string_view input) { HostileHost(input).run(); }

}  // namespace Orvo::Fuzz
