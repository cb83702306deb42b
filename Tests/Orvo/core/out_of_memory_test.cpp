#include <vector>

#include "Orvo/core/call_listener.h"
#include "Orvo/core/notification_table.h"
#include "Orvo/values/indexed.h"
#include "Script/store_panel.h"
#include "Support/bench.h"
#include "Support/memory.h"

namespace Orvo::Tests {
namespace {

using namespace std::chrono_literals;
using Widgets::NotificationKind;

constexpr Long kFine = 0;
constexpr Long kOutOfMemory = 7;
constexpr Long kNoError = -1;  // an exception that is none
constexpr StringView kLong = u"longer than what a text holds without an allocation of its own";

// To be converted, as far as it is a number.
Value argumentFor(const Parameter& parameter) {
    if (parameter.type == ValueType::string) return String(kLong);
    if (parameter.type == ValueType::array) return IntegerArray(0, std::vector<Integer>(300, 128));
    return parameter.passing == Passing::byValue ? Long{0} : Long{1};
}

std::vector<Value> argumentsFor(const Member& member) {
    std::vector<Value> arguments;
    for (const Parameter& parameter : member.parameters()) {
        arguments.push_back(argumentFor(parameter));
    }
    return arguments;
}

// A panel whose host does something at every event, and the worst error that it was told of.
class BusyPanel final : Runtime::Prompter, MarvaneAssistantEvents, CallListener {
public:
    BusyPanel() {
        owner_.connectPorts({{String(kLong), String(kLong), String(kLong), 1}});
        store().promptWith(this);
        panel().setErrorHandler([this](const Error& error) { add(error.number()); });
        store()[kCommon.amplifierIds].setText(String(kLong));
        store().enable(kCommon.amplifierIds, true);
        store().show(kCommon.resetLogButton, true);
    }

    MarvaneAssistant& panel() { return owner_.panel(); }
    Runtime::Store& store() { return owner_.store(); }

    template <class Act>
    void attempt(const Act& act) {
        try {
            act(*this);
        } catch (const Error& error) {
            add(error.number());
        } catch (...) {
            add(kNoError);
        }
    }

    void invoke(const Member& member, std::span<const Value> arguments) {
        const auto result = panel().invoke(member.dispatchId, member.kind, arguments);
        if (result.error) return add(result.error->number());
        returned(member, result.value);
    }

    // The heap has no room, and the enumeration fails as it does then.
    void returned(const Member& /*member*/, const Value& result) override {
        if (result == Value(Long{0})) add(kOutOfMemory);
    }

    void expectAfter(bool hasFailed) {
        ASSERT_EQ(worst_, hasFailed ? kOutOfMemory : kFine);
        worst_ = kFine;
        expectUsable();
    }

private:
    void add(Long number) {
        if (worst_ == kFine || worst_ == kOutOfMemory) worst_ = number;
    }

    void expectUsable() {
        store()[kCommon.amplifierIds].setText(u"7");
        for (const Member& member : kMembers) {
            invoke(member, argumentsFor(member));
            ASSERT_EQ(worst_, kFine) << member.name;
        }
        panel().CancellaTesto();
        panel().ReadOnly(false);
        ASSERT_TRUE(store().perform(Deed::click(channel(1).muteButton)));
        ASSERT_EQ(worst_, kFine);
        const auto& log = store().get<Runtime::StoredList>(kCommon.log).state();
        ASSERT_EQ(log.items, std::deque{String(kLong)});
        ASSERT_EQ(log.text, kLong.size());
    }

    std::optional<String> ask(const Widgets::Question& question) override {
        return question.echo == Widgets::Echo::hidden ? String(u"530284") : String(kLong);
    }
    void Mute(Integer& intChannel) override { panel().Mute(intChannel, true); }
    void GeneralInformations(Integer& /*intIdDevice*/, String& strInformations,
                             String& /*strSnAmp*/, String& /*strSnCard*/) override {
        const Value text = strInformations + strInformations;
        invoke(memberNamed<String>("AggiugiTesto"), {&text, 1});
    }

    Script::StorePanel owner_;
    Long worst_ = kFine;
    Connection typed_ = panel().connect(*this);
    Connection lateBound_ = panel().connect([this](Long, std::span<Value> arguments) {
        const std::vector<Value> kept(arguments.begin(), arguments.end());
        panel().AggiugiTesto(String(kLong));
    });
    Connection calls_ = panel().listen(*this);
};

// What makes the widget give the notification.
void provoke(const BoundNotification& bound, Runtime::Store& store) {
    switch (bound.kind) {
        case NotificationKind::release:
            store.perform({.verb = Deed::Verb::release, .widget = bound.widget});
            return;
        case NotificationKind::keyPress:
            store.perform(Deed::key(bound.widget, bound.widget == kCommon.log.id ? 18 : '\r'));
            return;
        case NotificationKind::change:
            store.perform(Deed::slide(bound.widget, 7));
            return;
        case NotificationKind::tick:
            store.perform(Deed::slide(entry(Layout::kPairs, bound.number)->testSlider, 7));
            store.advance(1500ms);
            return;
        default:
            store.perform(Layout::kindOf(bound.widget) == Layout::Kind::combo
                              ? Deed::pick(bound.widget, u"42")
                              : Deed::click(bound.widget));
    }
}

TEST(OutOfMemory, EndsACreation) {
    failEveryAllocation<BusyPanel>(
        [](BusyPanel&) { const MarvaneAssistant panel(Runtime::Store::create()); });
}

TEST(OutOfMemory, EndsWhatAHostCalls) {
    for (const Member& member : kMembers) {
        SCOPED_TRACE(member.name);
        const std::vector<Value> arguments = argumentsFor(member);
        failEveryAllocation<BusyPanel>([&](BusyPanel& busy) { busy.invoke(member, arguments); });
        std::vector<Value> converted;
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            converted.push_back(convert(arguments[i], member.parameters()[i].type));
        }
        failEveryAllocation<BusyPanel>(
            [&](BusyPanel& busy) { busy.returned(member, member.call(busy.panel(), converted)); });
    }
    failEveryAllocation<BusyPanel>([](BusyPanel& busy) {
        busy.panel().setErrorHandler({});
        const auto sink = busy.panel().connect([](Long, std::span<Value>) {});
    });
}

TEST(OutOfMemory, IsToldToTheErrorHandlerWhenItEndsWhatAPersonDoesOrATick) {
    for (const BoundNotification& bound : kNotifications) {
        SCOPED_TRACE(Layout::describe(bound.widget).name);
        failEveryAllocation<BusyPanel>([&](BusyPanel& busy) { provoke(bound, busy.store()); });
    }
    const Deed deed = Deed::pick(kCommon.amplifierIds, kLong);
    failEveryAllocation<BusyPanel>([&](BusyPanel& busy) { busy.store().perform(deed); });
}

}  // namespace
}  // namespace Orvo::Tests
