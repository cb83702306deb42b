#include <algorithm>
#include <array>
#include <functional>

#include "Orvo/core/notification_table.h"
#include "Support/operation_log.h"

// Every member and every handler, with each of its widget operations failing in turn.
namespace Orvo::Tests {
namespace {

class Answering final : public Runtime::Prompter {
public:
    std::optional<String> ask(const Widgets::Question& question) override {
        return question.echo == Widgets::Echo::hidden ? u"530284" : u"answer";
    }
};

// Runs an action on a fresh panel under a recorder, and says what number its error had.
using Act = std::function<Long(Bench& bench, OperationLog& recorder)>;

Long recorded(Bench& bench, OperationLog& recorder, const std::function<void()>& call) {
    bench.store().observeWith(&recorder);
    const Long error = errorOf(call);
    bench.store().observeWith(nullptr);
    return error;
}

Operations run(const Act& act, OperationLog& recorder, Long expectedError) {
    const auto bench = makeBench();
    EXPECT_EQ(act(*bench, recorder), expectedError);
    return recorder.seen;
}

void sweep(const std::string& label, const Act& act) {
    SCOPED_TRACE(label);
    OperationLog undisturbed;
    const Operations whole = run(act, undisturbed, 0);
    EXPECT_FALSE(whole.empty());
    for (std::size_t k = 0; k < whole.size(); ++k) {
        SCOPED_TRACE(k);
        OperationLog failing(k);
        const auto upTo = whole.begin() + static_cast<std::ptrdiff_t>(k) + 1;
        ASSERT_EQ(run(act, failing, 7), Operations(whole.begin(), upTo));
    }
}

Value argumentFor(ValueType type, std::size_t position, Integer index, Boolean truth) {
    switch (type) {
        case ValueType::boolean:
            return truth;
        case ValueType::integer:
            return position == 0 ? index : Integer{12};
        case ValueType::longInteger:
            return Long{0};
        case ValueType::string:
            return String(u"text");
        case ValueType::array:
            return IntegerArray(0, {0, 10, 128, 250, 3});
        default:
            return {};
    }
}

Act callOf(const Member& member, Integer index, Boolean truth) {
    return [&member, index, truth](Bench& bench, OperationLog& recorder) {
        std::vector<Value> arguments;
        for (const Parameter& parameter : member.parameters()) {
            arguments.push_back(argumentFor(parameter.type, arguments.size(), index, truth));
        }
        return recorded(bench, recorder, [&] { member.call(bench.panel(), arguments); });
    };
}

bool isOfPairs(const Member& member) {
    constexpr std::array<std::string_view, 7> kNames{"VPPower", "VPAux", "VNPower",    "VNAux",
                                                     "Clock",   "Ready", "Temperature"};
    return std::find(kNames.begin(), kNames.end(), member.name) != kNames.end();
}

TEST(FailureSweep, StopsEveryMemberAtTheOperationThatFails) {
    for (const Member& member : kMembers) {
        // These two touch no widget, and neither do the getters of what the panel keeps itself.
        const bool isPure = member.number <= 3 || member.number == 14 || member.number == 36;
        if (isPure) continue;
        const bool takesZero = member.name == "Protection" || member.name == "Mute";
        for (Integer index = 0; index <= 4; ++index) {
            if (index == 0 && !takesZero) continue;
            if (index > 2 && isOfPairs(member)) break;
            for (const bool truth : {true, false}) {
                sweep(std::string(member.name) + ' ' + std::to_string(index),
                      callOf(member, index, truth));
            }
        }
    }
}

// What a person, or the clock, does to make a widget notify; every widget is there for the taking.
void prepare(Bench& bench, const BoundNotification& row) {
    Runtime::Store& store = bench.store();
    store.show(row.widget, true);
    store.enable(row.widget, true);
    if (Layout::describe(row.widget).style.kind == Widgets::Kind::option) {
        for (const auto* lower : {&channel(2), &channel(4)}) {
            store.input().click(lower->negative.option);
            if (row.widget == lower->negative.option) store.input().click(lower->positive.option);
        }
    }
    if (row.kind != Widgets::NotificationKind::tick) return;
    for (const auto& pair : Layout::kPairs) {
        store.input().slide(pair.testSlider, 9);
        store.enable(pair.testTimer, row.widget == pair.testTimer);
    }
}

void perform(Bench& bench, const BoundNotification& row) {
    Runtime::Store& store = bench.store();
    using enum Widgets::NotificationKind;
    if (row.widget == kCommon.amplifierIds) return store.input().pick(row.widget, u"7");
    if (row.kind == tick) return store.advance(std::chrono::milliseconds(1500));
    if (row.kind == change) return store.input().slide(row.widget, 9);
    if (row.kind == click) return store.input().click(row.widget);
    store.input().type(row.widget, 18);
}

// The handlers that only raise an event.
bool touchesWidgets(const BoundNotification& row) {
    const auto handle = row.handle;
    return handle != &Detail::handle<&Panel::powerState, &PowerState::request> &&
           handle != &Detail::handle<&Panel::hostCommands, &HostCommands::toggleMute> &&
           handle != &Detail::handle<&Panel::hostCommands, &HostCommands::readInternalData> &&
           handle != &Detail::handle<&Panel::amplifierId, &AmplifierId::keyPressed>;
}

TEST(FailureSweep, StopsEveryHandlerAtTheOperationThatFails) {
    Answering prompter;
    for (const BoundNotification& row : kNotifications) {
        if (row.widget == Layout::kNoWidget || !touchesWidgets(row)) continue;
        sweep(std::string(Layout::describe(row.widget).name), [&](Bench& bench,
                                                                  OperationLog& recorder) {
            Long reported = 0;
            bench.store().promptWith(&prompter);
            bench.panel().setErrorHandler([&](const Error& error) { reported = error.number(); });
            prepare(bench, row);
            EXPECT_EQ(recorded(bench, recorder, [&] { perform(bench, row); }), 0);
            return reported;
        });
    }
}

TEST(FailureSweep, StopsTheStartUpAtTheOperationThatFails) {
    sweep("start-up", [](Bench& /*bench*/, OperationLog& recorder) {
        const auto store = Runtime::Store::create();
        store->observeWith(&recorder);
        return errorOf([&] { MarvaneAssistant panel(store); });
    });
}

}  // namespace
}  // namespace Orvo::Tests
