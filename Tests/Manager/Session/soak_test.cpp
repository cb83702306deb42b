#include <filesystem>
#include <iterator>

#include "Manager/Session/session_bench.h"
#include "Orvo/core/member_table.h"
#include "Support/memory.h"

namespace Orvo::Manager {
namespace {

// Two hours are for fast builds.
#if !defined(__OPTIMIZE__) || defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr auto kLength = std::chrono::milliseconds(4min);
#else
constexpr auto kLength = std::chrono::milliseconds(2h);
#endif
constexpr auto kRecorded = kLength / 8;  // which costs more than all the rest
constexpr auto kStep = 100ms;
constexpr std::size_t kMostGrowth = std::size_t{1} << 20;  // bytes
constexpr std::size_t kMostPerLine = 200;                  // bytes of a recording

struct Call {
    const Member* member;
    std::vector<Value> arguments;
};

Value argument(ValueType type, Integer round) {
    if (type == ValueType::string) return String(40, u'x');
    if (type == ValueType::array) return IntegerArray(1, std::vector<Integer>(40, round));
    return type == ValueType::longInteger ? Value(Long{0}) : Value(round);
}

// Every member, with other arguments each time.
std::vector<Call> callsOfAHost() {
    std::vector<Call> calls;
    for (Integer round = 1; round <= 4; ++round) {
        for (const Member& member : kMembers) {
            calls.push_back({&member, {}});
            for (const Parameter& parameter : member.parameters()) {
                calls.back().arguments.push_back(argument(parameter.type, round % 3));
            }
        }
    }
    return calls;
}

auto openDescriptors() {
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return std::distance(begin(all), end(all));
}

class SoakTest : public SessionBench {
protected:
    void soak(std::chrono::milliseconds length) {
        for (; length > 0ms; length -= kStep) {
            for (auto i = 0ms; i < kStep; ++i) {
                const Call& call = calls_[called_++ % calls_.size()];
                panel().invoke(call.member->dispatchId, call.member->kind, call.arguments);
            }
            session_->letPass(kStep);
            actAsAPerson();
        }
    }

    void soakWithoutGrowth(std::chrono::milliseconds length) {
        const auto descriptors = openDescriptors();
        const std::size_t memory = bytesInUse();
        soak(length);
        EXPECT_LT(bytesInUse(), memory + kMostGrowth);
        EXPECT_EQ(openDescriptors(), descriptors);
    }

    void actAsAPerson() {
        const auto& bound = kPersonsWidgets[acted_++ % kPersonsWidgets.size()];
        click(bound);
        store().perform(Deed::slide(pair(1).testSlider, static_cast<int>(acted_ % 100)));
    }

    static constexpr auto kPersonsWidgets = std::to_array<Widgets::WidgetId>(
        {kCommon.powerButton, kCommon.muteButton, channel(3).muteButton, pair(1).startButton,
         kCommon.internalDataButton, channel(4).positive.option});

    const std::vector<Call> calls_ = callsOfAHost();
    std::size_t called_ = 0;
    std::size_t acted_ = 0;
};

TEST_F(SoakTest, NeitherMemoryNorDescriptorsNorLinesGrow) {
    begin({.record = file_, .log = directory_.path() / "log.txt"});
    session_->connectSimulator();
    soak(kRecorded / 2);
    soakWithoutGrowth(kRecorded / 2);
    EXPECT_LT(std::filesystem::file_size(file_), called_ * kMostPerLine);
    session_->stopRecording();
    soakWithoutGrowth(kLength - kRecorded);
    EXPECT_EQ(warnings_, std::vector<std::string>());
}

}  // namespace
}  // namespace Orvo::Manager
