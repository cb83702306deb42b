#include "Orvo/service/port_discovery.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <memory>
#include <new>

#include <sys/resource.h>

#include "Orvo/service/block_heap.h"
#include "Support/bench.h"
#include "Support/spooler.h"

namespace Orvo::Tests {
namespace {

Runtime::Ports numbered(int count, const String& name = u"port") {
    Runtime::Ports ports;
    for (int i = 0; i < count; ++i) {
        ports.push_back({name + fromUtf8(std::to_string(i)), u"m", u"d", PortSpooler::write});
    }
    return ports;
}

class PortDiscoveryTest : public testing::Test {
protected:
    [[nodiscard]] auto storedCount() const {
        return std::ranges::count(discovery_.ports(), PortSpooler::write, &PortRecord::PortType);
    }

    std::shared_ptr<ScriptedSpooler> spooler_ = std::make_shared<ScriptedSpooler>();
    std::shared_ptr<BlockHeap> heap_ = std::make_shared<BlockHeap>();
    PortDiscovery discovery_{{spooler_, heap_}};
};

TEST_F(PortDiscoveryTest, WritesServerAndTextsInCodePage1252) {
    spooler_->list({{u"日COM€", u"Überwacher", u"…", 11}});
    EXPECT_EQ(discovery_.discover(u"\\\\bücher€\U0001F50A"), 1);
    EXPECT_EQ(spooler_->askedServer,
              "\\\\b\xFC"
              "cher\x80?");
    EXPECT_EQ(shown(discovery_.ports()[0]), "?COM€, Überwacher, …, 11");
}

TEST_F(PortDiscoveryTest, EndsTheServersNameAtItsFirstNul) {
    for (const String& padded : {String(2, u'\0'), u"rack" + String(70000, u'\0') + u"x"}) {
        discovery_.discover(padded);
        EXPECT_EQ(spooler_->askedServer, toUtf8(padded.substr(0, padded.find(u'\0'))));
    }
}

TEST_F(PortDiscoveryTest, KeepsTheEntriesAboveTheCount) {
    spooler_->list(numbered(5, u"old"));
    discovery_.discover(u"");
    spooler_->list(numbered(3, u"new"));
    EXPECT_EQ(discovery_.discover(u""), 3);
    EXPECT_EQ(discovery_.ports()[2].PortName, u"new2");
    EXPECT_EQ(discovery_.ports()[3].PortName, u"old3");
    EXPECT_EQ(discovery_.ports()[4].PortName, u"old4");
}

void setField(std::span<std::byte> buffer, std::size_t field, Long value) {
    std::memcpy(&buffer[field * sizeof value], &value, sizeof value);
}

struct Outcome {
    const char* label;
    std::function<void(ScriptedSpooler&)> script;
    Long result;
    Long error;
    int stored;
};

const Outcome kOutcomes[] = {
    {"no ports", [](auto& spooler) { spooler.list({}); }, 0, 0, 0},
    {"as many as fit", [](auto& spooler) { spooler.list(numbered(101)); }, 101, 0, 101},
    {"one too many", [](auto& spooler) { spooler.list(numbered(102)); }, 0, 9, 101},
    {"the greatest count", [](auto& spooler) { spooler.list(numbered(32768)); }, 0, 9, 101},
    {"too great a count", [](auto& spooler) { spooler.list(numbered(32769)); }, 0, 6, 0},
    {"fill call fails", [](auto& spooler) { spooler.fillCall.succeeds = false; }, 3, 0, 0},
    {"fill call fails with a count of its own",
     [](auto& spooler) {
         spooler.fillCall = {numbered(3), false, 7};
     },
     7, 0, 0},
    {"size query fails", [](auto& spooler) { spooler.sizeQuery.succeeds = false; }, 3, 0, 3},
    {"none at the size query", [](auto& spooler) { spooler.sizeQuery.ports = {}; }, 0, 0, 0},
    {"fewer than at the size query", [](auto& spooler) { spooler.fillCall.ports = numbered(2); }, 2,
     0, 2},
    {"more than at the size query", [](auto& spooler) { spooler.fillCall.ports = numbered(4); }, 0,
     0, 0},
    {"more counted than written", [](auto& spooler) { spooler.fillCall.count = 1000; }, 0, 5, 3},
    {"address of no block",
     [](auto& spooler) { spooler.spoil = [](auto buffer) { setField(buffer, 6, 17); }; }, 0, 5, 1},
    {"text without an end",
     [](auto& spooler) { spooler.spoil = [](auto buffer) { buffer.back() = std::byte{'x'}; }; }, 0,
     5, 2},
    {"no address at all",
     [](auto& spooler) { spooler.spoil = [](auto buffer) { setField(buffer, 6, 0); }; }, 3, 0, 3},
};

TEST_F(PortDiscoveryTest, EndsAsTheSpoolerHasItAndReleasesTheBuffer) {
    for (const Outcome& outcome : kOutcomes) {
        SCOPED_TRACE(outcome.label);
        *spooler_ = {};
        spooler_->list(numbered(3));
        outcome.script(*spooler_);
        discovery_ = PortDiscovery({spooler_, heap_});
        Long result = 0;
        EXPECT_EQ(errorOf([&] { result = discovery_.discover(u"server"); }), outcome.error);
        EXPECT_EQ(result, outcome.result);
        EXPECT_EQ(storedCount(), outcome.stored);
        EXPECT_EQ(heap_->blockCount(), 0U);
    }
}

TEST_F(PortDiscoveryTest, PassesAFailedAllocationOnToTheFillCall) {
    struct FullHeap final : ProcessHeap {
        Long allocate(std::size_t /*bytes*/) override { return 0; }
        void release(Long /*address*/) override { ADD_FAILURE() << "nothing to release"; }
        std::span<std::byte> bytesFrom(Long /*address*/) override { return {}; }
    };
    discovery_ = PortDiscovery({spooler_, std::make_shared<FullHeap>()});
    spooler_->list(numbered(3));
    EXPECT_EQ(discovery_.discover(u""), 0);
    spooler_->fillCall.count = 3;
    EXPECT_EQ(discovery_.discover(u""), 3);
    EXPECT_EQ(storedCount(), 0);
}

TEST_F(PortDiscoveryTest, GivesTheFillCallTheNeededSizeAndNoMore) {
    struct RoundingHeap final : ProcessHeap {
        Long allocate(std::size_t bytes) override { return blocks.allocate(bytes + 100); }
        void release(Long address) override { blocks.release(address); }
        std::span<std::byte> bytesFrom(Long address) override { return blocks.bytesFrom(address); }
        BlockHeap blocks;
    };
    discovery_ = PortDiscovery({spooler_, std::make_shared<RoundingHeap>()});
    spooler_->sizeQuery.ports = numbered(1);
    spooler_->fillCall.ports = numbered(2);
    EXPECT_EQ(discovery_.discover(u""), 0);
}

class PortMembersTest : public PortDiscoveryTest {
protected:
    MarvaneAssistant panel_{Runtime::Store::create(), {spooler_, heap_}};
};

TEST_F(PortMembersTest, GetAvailablePortsDiscovers) {
    spooler_->list(numbered(101));
    EXPECT_EQ(panel_.GetAvailablePorts(u"x"), 101);
    EXPECT_EQ(spooler_->askedServer, "x");
    spooler_->list(numbered(102));
    EXPECT_EQ(errorOf([&] { panel_.GetAvailablePorts(u""); }), 9);
    EXPECT_EQ(MarvaneAssistant(Runtime::Store::create()).GetAvailablePorts(u""), 0);
}

TEST_F(PortMembersTest, InvokeTurnsWhateverIsThrownIntoAnError) {
    const auto number = [&](std::function<void()> fail) {
        spooler_->list(numbered(1));
        spooler_->spoil = [&](auto) { fail(); };
        const Value server = String();
        return panel_.invoke(0x60030017, MemberKind::method, {&server, 1}).error.value().number();
    };
    EXPECT_EQ(number([] { throw std::bad_alloc(); }), 7);
    EXPECT_EQ(number([] { throw std::logic_error("x"); }), 1003);
    EXPECT_EQ(number([] { throw 5; }), 1003);
    EXPECT_EQ(heap_->blockCount(), 0U);
}

TEST_F(PortMembersTest, TrimStrFindsNoNulBeyondItsLimit) {
    const String longText(70000, u'x');
    const String atTheLimit(32766, u'x');
    EXPECT_EQ(panel_.TrimStr(longText), longText);
    EXPECT_EQ(panel_.TrimStr(atTheLimit + u'\0'), atTheLimit);
    EXPECT_EQ(errorOf([&] { panel_.TrimStr(atTheLimit + u'x' + u'\0'); }), 6);
}

TEST_F(PortMembersTest, LpstrToStringReadsNoFurtherThanTheBlock) {
    constexpr std::string_view kText("N\xE4me\0rest", 9);
    const Long address = heap_->allocate(kText.size());
    std::memcpy(heap_->bytesFrom(address).data(), kText.data(), kText.size());
    EXPECT_EQ(panel_.LPSTRtoSTRING(0), u"");
    EXPECT_EQ(panel_.LPSTRtoSTRING(address), u"Näme");
    EXPECT_EQ(panel_.LPSTRtoSTRING(address + 2), u"me");
    EXPECT_EQ(panel_.LPSTRtoSTRING(address + 4), u"");
    for (const Long foreign : {address + 5, address + 9, address - 1, Long{1}, Long{-1}}) {
        EXPECT_EQ(errorOf([&] { panel_.LPSTRtoSTRING(foreign); }), 5) << foreign - address;
    }
    heap_->release(address);
    EXPECT_EQ(errorOf([&] { panel_.LPSTRtoSTRING(address); }), 5);
}

TEST(BlockHeapTest, GoesOnForeverBesideABlockThatStays) {
    BlockHeap heap;
    heap.allocate(1);
    for (std::size_t total = 0; total < 0x8000'0000; total += 0x1'0000) {
        const Long address = heap.allocate(0x1'0000);
        ASSERT_NE(address, 0) << total;
        heap.release(address);
    }
    EXPECT_EQ(heap.allocate(0x8000'0000), 0);
}

// Sanitizers end the process instead.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
TEST(BlockHeapTest, HasNoBlockWhenTheMachineHasNoMemory) {
    rlimit before{};
    getrlimit(RLIMIT_AS, &before);
    const rlimit none{0, before.rlim_max};
    setrlimit(RLIMIT_AS, &none);
    const Long address = BlockHeap().allocate(0x4000'0000);
    setrlimit(RLIMIT_AS, &before);
    EXPECT_EQ(address, 0);
}
#endif

}  // namespace
}  // namespace Orvo::Tests
