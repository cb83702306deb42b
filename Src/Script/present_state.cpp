#include "Script/present_state.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <utility>

#include "Orvo/core/member_table.h"
#include "Orvo/layout/roles.h"
#include "Orvo/monitor/volume.h"
#include "Orvo/store/shown.h"
#include "Orvo/values/text.h"
#include "Orvo/widgets/trace.h"
#include "Script/command.h"
#include "Script/looking.h"
#include "Script/message_log.h"
#include "Script/text_of.h"
#include "Script/tried_script.h"

namespace Orvo::Script {
namespace {

using namespace Runtime;
using namespace Layout;

using I = Integer;
using B = Boolean;

template <class... Arguments>
std::string calling(const Member& member, const Arguments&... arguments) {
    return commandText(member, std::array<Value, sizeof...(Arguments)>{Value(arguments)...});
}

// Which member writes what is for something in each part of the amplifier.
template <class Part, class Role>
struct Row {
    const Member& member;
    Role Part::*role;
};

constexpr auto kChannelLamps = std::to_array<Row<Channel, Widgets::ShapeRef>>({
    {memberNamed<I, B>("Protection"), &Channel::protectionLamp},
    {memberNamed<I, B>("Signal"), &Channel::signalLamp},
    {memberNamed<I, B>("Mute"), &Channel::muteLamp},
});
constexpr auto kPairLamps = std::to_array<Row<Pair, Widgets::ShapeRef>>({
    {memberNamed<I, B>("Clock"), &Pair::clockLamp},
    {memberNamed<I, B>("Ready"), &Pair::readyLamp},
});
constexpr auto kPairReadouts = std::to_array<Row<Pair, Readout>>({
    {memberNamed<I, I>("VPPower"), &Pair::positivePower},
    {memberNamed<I, I>("VNPower"), &Pair::negativePower},
    {memberNamed<I, I>("VPAux"), &Pair::positiveAux},
    {memberNamed<I, I>("VNAux"), &Pair::negativeAux},
    {memberNamed<I, I>("Temperature"), &Pair::temperature},
});

constexpr std::array kTimerMembers{&memberNamed<B>("TimerVirtualTemp12"),
                                   &memberNamed<B>("TimerVirtualTemp34")};
constexpr Integer kMains = 5;  // the test's row

/// Brings a fresh panel to the state of another one, step by step, and writes the steps down. A
/// step that is not needed is none.
class PresentState {
public:
    PresentState(const Store& present, Boolean readOnly) : present_(present), readOnly_(readOnly) {}

    std::string script() {
        bringAmplifier();
        for (I i = 1; i <= I{kPairs.size()}; ++i) bringPair(i, kPairs[std::size_t(i - 1)]);
        for (I i = 1; i <= I{kChannels.size()}; ++i) bringChannel(i, kChannels[std::size_t(i - 1)]);
        bringTests();
        bringLog();
        bringTabs();
        bringTimers();
        bringRights();
        tellOfTheRest();
        return script_.take();
    }

private:
    template <class Stored, class Id>
    [[nodiscard]] const auto& present(Id widget) const {
        return present_.get<Stored>(widget).state();
    }

    void say(const std::string& command) { script_.say(command); }
    [[nodiscard]] bool differs(WidgetId widget) {
        return Looking::describe(present_, widget) != Looking::describe(script_.store(), widget);
    }
    void bring(WidgetId widget, const std::string& command) {
        if (differs(widget)) say(command);
    }
    template <class... Index>
    void bringLamp(Widgets::ShapeRef lamp, const Member& member, Index... index) {
        bring(lamp, calling(member, index..., B(isLit(present_, lamp))));
    }
    void bringOption(Widgets::OptionRef option) {
        const bool isChosen = present<StoredOption>(option).value;
        if (isChosen && !script_.state<StoredOption>(option).value)
            say(commandText(Deed::click(option)));
    }
    // By key, which raises no event.
    void bringCheck(Widgets::CheckRef check) {
        const bool isAlike =
            present<StoredCheck>(check).value == script_.state<StoredCheck>(check).value;
        if (!isAlike) say(commandText(Deed::activate(check)));
    }

    // The lamp of the whole amplifier goes before its channels' lamps, which may disagree.
    void bringAmplifier() {
        bringId();
        bringLamp(kCommon.linkLamp, memberNamed<B>("Connected"));
        bring(kPairs[0].linkText,
              calling(memberNamed<B>("Connected"), B(isLit(present_, kCommon.linkLamp))));
        bringLamp(kCommon.powerLamp, memberNamed<B>("PowerOn"));
        bringLamp(kPairs[0].mainsLamp, memberNamed<B>("MainPresence"));
        bringLamp(kCommon.protectionLamp, memberNamed<I, B>("Protection"), I{0});
        bringLamp(kCommon.muteLamp, memberNamed<I, B>("Mute"), I{0});
    }

    // The pair tabs show the id that was picked last, also when the host has selected another one
    // since. It can be picked while another one is selected.
    void bringId() {
        const String& picked = present<StoredLabel>(kPairs[0].amplifierId).caption;
        constexpr const auto& kSelect = memberNamed<I>("IdDevice");
        if (differs(kPairs[0].amplifierId))
            say(commandText(Deed::pick(kCommon.amplifierIds, picked)));
        const String& selected = present<StoredCombo>(kCommon.amplifierIds).text;
        bring(kCommon.amplifierIds, calling(kSelect, I(numericValue(selected))));
    }

    void bringPair(Integer number, const Pair& pair) {
        for (const auto& row : kPairLamps) bringLamp(pair.*row.role, row.member, number);
        for (const auto& row : kPairReadouts) {
            if (const auto value = shownOn(pair.*row.role)) {
                say(calling(row.member, number, *value));
            }
        }
        for (const auto option : pair.waves) bringOption(option);
        bringCheck(pair.powerCheck);
        bringSlider(pair.testSlider,
                    commandText(Deed::slide(pair.testSlider,
                                            present<StoredSlider>(pair.testSlider).position)));
    }

    void bringChannel(Integer number, const Channel& channel) {
        for (const auto& row : kChannelLamps) {
            bringLamp(channel.*row.role, row.member, number);
        }
        const bool hasSign = present<StoredLabel>(*channel.volume.sign).caption == u"-";
        if (const auto value = shownOn(channel.volume)) {
            say(calling(memberNamed<I, I>("Volume"), number, I(hasSign ? -*value : *value)));
        }
        bringOption(channel.positive.option);
        bringOption(channel.negative.option);
        const auto position = present<StoredSlider>(channel.volumeSlider).position;
        bringSlider(channel.volumeSlider,
                    calling(memberNamed<I, I>("VolumeSlider"), number, volumeAt(position)));
        bringScope(number, channel.scope);
    }

    // The number on a readout that the fresh panel doesn't show yet, if the host has written one.
    std::optional<Integer> shownOn(const Readout& readout) {
        const auto value = magnitudeOn(present_, readout);
        const bool isNew = std::ranges::any_of(readout.digits(),
                                               [this](WidgetId place) { return differs(place); });
        return value && isNew ? std::optional(I(*value)) : std::nullopt;
    }

    void bringSlider(Widgets::SliderRef slider, const std::string& move) {
        if (script_.state<StoredSlider>(slider).position != present<StoredSlider>(slider).position)
            say(move);
        if (present<StoredSlider>(slider).isHeld) say(commandText(Deed::hold(slider)));
    }

    void bringScope(Integer channel, Widgets::PictureRef scope) {
        if (!drawsOtherwise(scope)) return;
        const auto& drawing = present<StoredPicture>(scope).drawing;
        const auto* trace =
            drawing.empty() ? nullptr : std::get_if<Widgets::Trace>(&drawing.back());
        if (trace == nullptr) return say(calling(memberNamed<I>("DisegnaAssi"), channel));
        say(calling(memberNamed<I, IntegerArray>("DisegnaFormaDOnda"), channel,
                    IntegerArray(1, trace->samples)));
    }
    [[nodiscard]] bool drawsOtherwise(WidgetId scope) {
        return present<StoredPicture>(scope).drawing != script_.state<StoredPicture>(scope).drawing;
    }

    // What clears a row clears others, too, so it goes before what fills one.
    void bringTests() {
        for (I row = 0; row < kMains; ++row)
            bringTest(row, u"-", calling(memberNamed<>("ClearTest")));
        bringTest(kMains, u"", calling(memberNamed<>("ClearMains")));
        constexpr const auto& kResult = memberNamed<I, B>("chkTest");
        for (I row = 0; row <= kMains; ++row) {
            bringTest(row, u"PASS", calling(kResult, row, B(true)));
            bringTest(row, u"FAIL", calling(kResult, row, B(false)));
        }
    }
    void bringTest(Integer row, StringView caption, const std::string& command) {
        const auto result = kCommon.testResults.at(row);
        if (present<StoredLabel>(result).caption == caption) bring(result, command);
    }

    void bringLog() {
        for (const String& line : present<StoredList>(kCommon.log).items) {
            say(calling(kAddToLog, line));
        }
    }

    void bringTabs() {
        const TabsState& tabs = present<StoredTabs>(kTabs.id);
        const bool hasSecondPair = tabs.enabled.back();
        if (hasSecondPair != script_.state<StoredTabs>(kTabs.id).enabled.back()) {
            say(calling(memberNamed<B>("AbilitaSlave"), B(hasSecondPair)));
        }
        bring(kTabs.id, commandText(Deed::tab(kTabs.id, tabs.current)));
    }

    [[nodiscard]] bool isRunning(std::size_t pair) const {
        return present_.widget(kPairs[pair].testTimer).isEnabled();
    }
    // Since it was started or ticked last.
    [[nodiscard]] Store::Milliseconds ageOf(std::size_t pair) const {
        const TimerState& timer = present<StoredTimer>(kPairs[pair].testTimer);
        return timer.interval - (timer.due - present_.now());
    }

    // The older one is started first; none is so old that it would tick meanwhile.
    void bringTimers() {
        std::array<std::size_t, kPairs.size()> timers{0, 1};
        std::ranges::sort(timers, std::greater(), [this](std::size_t i) { return ageOf(i); });
        if (isRunning(0) && isRunning(1) && ageOf(timers[0]) == Store::Milliseconds(0)) return;
        for (const std::size_t i : timers) say(calling(*kTimerMembers[i], B(false)));
        Store::Milliseconds age{0};
        for (const std::size_t i : timers) {
            if (!isRunning(i)) continue;
            letPass(age - ageOf(i));
            say(calling(*kTimerMembers[i], B(true)));
            age = ageOf(i);
        }
        letPass(age);
    }
    void letPass(Store::Milliseconds time) {
        if (time.count() > 0) say("wait " + std::to_string(time.count()));
    }

    // Whatever the panel refuses to whom may only watch has been done by now.
    void bringRights() {
        if (readOnly_ != B(false)) say(calling(memberNamed<B>("ReadOnly"), readOnly_));
        if (present_.pointer() != script_.store().pointer()) {
            say("pointer " + std::to_string(static_cast<int>(present_.pointer())));
        }
        for (WidgetId id = 0; id < kWidgetCount; ++id) {
            set(id, "enabled", &StoredWidget::isEnabled);
            set(id, "visible", &StoredWidget::isVisible);
        }
    }
    void set(WidgetId id, std::string_view property, bool (StoredWidget::*has)() const) {
        const bool wanted = (present_.widget(id).*has)();
        if ((script_.store().widget(id).*has)() == wanted) return;
        std::string command = "set ";
        say(command.append(describe(id).name)
                .append(" ")
                .append(property)
                .append(" ")
                .append(textOf(wanted)));
    }

    void tellOfTheRest() {
        for (WidgetId id = 0; id < kWidgetCount; ++id) {
            const bool isScope = kindOf(id) == Widgets::Kind::picture;
            if (!differs(id) && !(isScope && drawsOtherwise(id))) continue;
            script_.comment(std::string(kNotBrought).append(describe(id).name) + ' ' +
                            Looking::describe(present_, id));
        }
    }

    const Store& present_;
    const Boolean readOnly_;
    TriedScript script_;
};

}  // namespace

std::string presentState(const Store& store, Boolean readOnly) {
    return PresentState(store, readOnly).script();
}

}  // namespace Orvo::Script
