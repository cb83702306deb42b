#pragma once

#include <array>
#include <functional>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "Script/answers.h"
#include "Script/argument_types.h"
#include "Script/host_side.h"
#include "Script/looking.h"
#include "Script/session.h"
#include "Script/text_of.h"

// The language's commands, one row each.
namespace Orvo::Script {
namespace Detail {

template <const auto&... kArguments>
inline constexpr std::array<WordKind, sizeof...(kArguments)> kWords{kArguments...};

// A function of the session's or the person's own, or one that returns the closing line.
template <auto kFunction, class... Values>
std::string carryOut(Session& session, const Values&... values) {
    using Function = decltype(kFunction);
    if constexpr (std::is_invocable_v<Function, Person&, const Values&...>) {
        std::invoke(kFunction, session.person(), values...);
        return ok();
    } else if constexpr (std::is_invocable_v<Function, const Session&, const Values&...>) {
        // What does nothing but answer.
        return session.isHeard() ? std::invoke(kFunction, session, values...) : ok();
    } else if constexpr (std::is_invocable_r_v<std::string, Function, Session&, const Values&...>) {
        return std::invoke(kFunction, session, values...);
    } else {
        std::invoke(kFunction, session, values...);
        return ok();
    }
}

// Braces, so that the values are taken from left to right.
template <auto kFunction, const auto&... kArguments>
ParsedCommand parseCommand([[maybe_unused]] Arguments& arguments) {
    return {[values = std::tuple{kArguments.take(arguments)...}](Session& session) {
        return std::apply(
            [&](const auto&... value) { return carryOut<kFunction>(session, value...); }, values);
    }};
}

template <auto kFunction, const auto&... kArguments>
consteval Command command(std::string_view name, Side side, std::string_view help,
                          Place place = Place::anywhere, Target target = Target::panel) {
    return {name,  side,  kWords<kArguments...>, help, &parseCommand<kFunction, kArguments...>,
            place, target};
}

template <auto kFunction, const auto&... kArguments>
consteval Command queueing(std::string_view name, std::string_view help) {
    return command<kFunction, kArguments...>(name, Side::person, help, Place::anywhere,
                                             Target::queue);
}

// Which part of a deed an argument is, by its type.
template <class Value>
constexpr Value Runtime::Deed::*kPart = nullptr;
template <>
inline constexpr auto kPart<WidgetId> = &Runtime::Deed::widget;
template <>
inline constexpr auto kPart<Runtime::MouseButton> = &Runtime::Deed::button;
template <>
inline constexpr auto kPart<int> = &Runtime::Deed::number;
template <>
inline constexpr auto kPart<String> = &Runtime::Deed::text;

template <class Value>
void take(Runtime::Deed& deed, const Argument<Value>& argument, Arguments& arguments) {
    deed.*kPart<Value> = argument.take(arguments);
}

// Who says nothing of a widget means the tabs.
template <Runtime::Deed::Verb kVerb, const auto&... kArguments>
ParsedCommand parseDeed(Arguments& arguments) {
    Runtime::Deed deed{.verb = kVerb, .widget = Layout::kTabs.id};
    (take(deed, kArguments, arguments), ...);
    return {[deed = std::move(deed)](Session& session) {
        session.perform(deed);
        return ok();
    }};
}

inline std::string wordOf(WidgetId widget) {
    return ' ' + std::string(Layout::describe(widget).name);
}
inline std::string wordOf(int number) { return ' ' + std::to_string(number); }
inline std::string wordOf(const String& text) { return ' ' + textOf(StringView(text)); }
// The first button goes without saying.
inline std::string wordOf(Runtime::MouseButton button) {
    const auto place = static_cast<std::size_t>(button);
    return place == 0 ? "" : ' ' + std::string(kButtonNames[place]);
}

template <class Value>
std::string wordOf(const Argument<Value>& /*argument*/, const Runtime::Deed& deed) {
    return wordOf(deed.*kPart<Value>);
}

template <const auto&... kArguments>
std::string wordsOf(const Runtime::Deed& deed) {
    return (wordOf(kArguments, deed) + ...);
}

template <Runtime::Deed::Verb kVerb, const auto&... kArguments>
consteval Command deed(std::string_view name, std::string_view help) {
    return {.name = name,
            .side = Side::person,
            .words = kWords<kArguments...>,
            .help = help,
            .parse = &parseDeed<kVerb, kArguments...>,
            .verb = kVerb,
            .wordsOf = &wordsOf<kArguments...>};
}

consteval auto commandTable() {
    using enum Side;
    using Do = Runtime::Deed::Verb;
    namespace H = HostSide;
    namespace L = Looking;
    // clang-format off
    return std::to_array<Command>({
        command<H::call, kLet>               ("let",       host,    "Writes a property."),
        command<H::call, kGet>               ("get",       host,    "Reads a property."),
        command<H::call, kCall>              ("call",      host,    "Calls a method."),
        command<H::call, kLateCall>          ("invoke",    host,    "The same, late-bound, by dispatch id; the panel converts the arguments."),
        command<H::id, kMember>              ("id",        host,    "The dispatch id of a member."),
        command<H::members>                  ("members",   host,    "Lists the members in interface order: number, name, kind, dispatch id."),
        command<H::events>                   ("events",    host,    "Lists the events: dispatch id, name, arguments."),
        command<&Session::remember, kEvent, kNested>
                                             ("on",        host,    "From now on the host answers the event with this command; several for one event run in the order given."),
        command<&Session::forget, kEvent>    ("off",       host,    "Forgets the commands given for the event."),
        command<&Session::renew>             ("new",       host,    "Releases the panel and creates a fresh one; forgets what `on`, `answer`, `meanwhile` and `set` have said."),

        deed<Do::click, kOnScreen, kButton>  ("click",              "A mouse button, the left one unless another is named, is pressed and released over the widget."),
        deed<Do::release, kOnScreen, kButton>("release",            "The button is pressed on the widget, dragged off it and released: no click, but the widget gets the release."),
        deed<Do::activate, kOnScreen>        ("activate",           "The widget is activated from the keyboard."),
        deed<Do::key, kOnScreen, kKeyCode>   ("key",                "A key with this character code, 0 to 65535, is typed while the widget has the focus."),
        deed<Do::pick, kCombo, kText>        ("pick",               "The item with this text is picked from the drop-down list."),
        deed<Do::slide, kSlider, kPosition>  ("slide",              "The slider is moved to this position, or to the bound nearest to it, and let go."),
        deed<Do::hold, kSlider>              ("hold",               "The slider's button is pressed and kept pressed."),
        deed<Do::drop, kSlider>              ("drop",               "The slider's button is let go."),
        deed<Do::tab, kTab>                  ("tab",                "This tab of the panel, counted from 0, is selected."),
        queueing<&Session::queueAnswer, kAnswer>
                                             ("answer",             "What is typed at the next input prompt that has no answer yet, or that it is cancelled."),
        queueing<&Session::queueCommand, kNested>
                                             ("meanwhile",          "Queues a command for the midst of another: it is carried out when the panel next raises an event or opens a prompt, before that is done with."),
        queueing<&Session::queueResumption>  ("resume",             "Ends what is queued for one event; what is queued behind it is for the next one, or for a prompt."),
        command<&Session::becomeChronological>
                                             ("chronological", person, "From now on `answer`, `meanwhile` and `resume` are for the command above them, which a script carries out when all of them are queued. A recording begins so."),
        command<&Person::wait, kMilliseconds>("wait",      person,  "Time passes; timers that come due tick, in order."),

        command<L::show, kWidgetOrScreen>    ("show",      looking, "What a widget, or the screen, shows."),
        command<L::items, kItemHolder>       ("items",     looking, "Lists the items of a list or combo box."),
        command<L::drawing, kPicture>        ("drawing",   looking, "Lists what has been drawn on a picture surface since it was last cleared.", Place::inMemory),
        command<L::widgets>                  ("widgets",   looking, "Lists the widgets: name, kind, container."),
        command<L::set, kWidget, kProperty, kTruth>
                                             ("set",       looking, "Changes the layout under the panel's feet."),
        command<L::pointer, kPointer>        ("pointer",   looking, "Sets the screen's pointer, as a host does that takes the panel's hourglass away."),
        command<&Person::connectPorts, kPorts>
                                             ("spooler",   looking, "The ports that the print spooler has from now on, for `GetAvailablePorts`; without a name it has none, and its enumeration fails.", Place::inMemory),
        command<&Person::shoot, kFile>       ("shot",      looking, "Writes a PNG picture of the panel as it stands on the screen; error 58 when the file exists already, unless the program was started with `--overwrite`.", Place::inWindow, Target::files),
        command<&Session::quit>              ("quit",      looking, "Ends the program."),
    });
    // clang-format on
}

}  // namespace Detail

inline constexpr auto kCommands = Detail::commandTable();

}  // namespace Orvo::Script
