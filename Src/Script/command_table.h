#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "Script/host_side.h"
#include "Script/looking.h"
#include "Script/person_side.h"

// The language's commands, one row each.
namespace Orvo::Script {
namespace Detail {

template <class Function>
struct CommandSignature;

template <class... Arguments>
struct CommandSignature<std::string (*)(Session&, Arguments...)> {
    using Values = std::tuple<std::remove_cvref_t<Arguments>...>;
};

template <class Values>
struct Taken;

template <class... Values>
struct Taken<std::tuple<Values...>> {
    /// Whether a row's words are those of the values.
    static consteval bool fits(std::string_view words) {
        std::string_view blank;
        for (const std::string_view next :
             std::array<std::string_view, sizeof...(Values)>{Values::kWords...}) {
            for (const std::string_view part : {std::exchange(blank, " "), next}) {
                if (!words.starts_with(part)) return false;
                words.remove_prefix(part.size());
            }
        }
        return words.empty();
    }

    // Braces, so that the values are taken from left to right.
    static std::tuple<Values...> from([[maybe_unused]] Arguments& arguments) {
        return std::tuple<Values...>{Values::take(arguments)...};
    }
};

template <auto kFunction>
Action parseCommand(Arguments& arguments) {
    using Values = typename CommandSignature<decltype(kFunction)>::Values;
    return [values = Taken<Values>::from(arguments)](Session& session) {
        return std::apply([&session](const auto&... value) { return kFunction(session, value...); },
                          values);
    };
}

template <auto kFunction>
consteval Command command(std::string_view name, Side side, std::string_view words,
                          std::string_view help, Place place = Place::anywhere) {
    using Values = typename CommandSignature<decltype(kFunction)>::Values;
    if (!Taken<Values>::fits(words)) throw "the words are not the function's";
    return {name, side, words, help, &parseCommand<kFunction>, place};
}

consteval auto commandTable() {
    using enum Side;
    namespace H = HostSide;
    namespace P = PersonSide;
    namespace L = Looking;
    // clang-format off
    return std::to_array<Command>({
        command<&H::let>      ("let",      host,    "NAME [INDEX] VALUE",               "Writes a property."),
        command<&H::get>      ("get",      host,    "NAME [INDEX]",                     "Reads a property."),
        command<&H::call>     ("call",     host,    "NAME [ARGUMENT …]",                "Calls a method."),
        command<&H::invoke>   ("invoke",   host,    "DISPID get|let|call [ARGUMENT …]", "The same, late-bound, by dispatch id; the panel converts the arguments."),
        command<&H::id>       ("id",       host,    "NAME",                             "The dispatch id of a member."),
        command<&H::members>  ("members",  host,    "",                                 "Lists the members in interface order: number, name, kind, dispatch id."),
        command<&H::events>   ("events",   host,    "",                                 "Lists the events: dispatch id, name, arguments."),
        command<&H::on>       ("on",       host,    "EVENT COMMAND …",                  "From now on the host answers the event with this command; several for one event run in the order given."),
        command<&H::off>      ("off",      host,    "EVENT",                            "Forgets the commands given for the event."),
        command<&H::renew>    ("new",      host,    "",                                 "Releases the panel and creates a fresh one; forgets what `on`, `answer`, `meanwhile` and `set` have said."),

        command<&P::click>    ("click",    person,  "WIDGET [left|right|middle]",       "A mouse button, the left one unless another is named, is pressed and released over the widget."),
        command<&P::release>  ("release",  person,  "WIDGET [left|right|middle]",       "The button is pressed on the widget, dragged off it and released: no click, but the widget gets the release."),
        command<&P::activate> ("activate", person,  "WIDGET",                           "The widget is activated from the keyboard."),
        command<&P::key>      ("key",      person,  "WIDGET CODE",                      "A key with this character code, 0 to 65535, is typed while the widget has the focus."),
        command<&P::pick>     ("pick",     person,  "COMBO TEXT",                       "The item with this text is picked from the drop-down list."),
        command<&P::slide>    ("slide",    person,  "SLIDER POSITION",                  "The slider is moved to this position, or to the bound nearest to it, and let go."),
        command<&P::hold>     ("hold",     person,  "SLIDER",                           "The slider's button is pressed and kept pressed."),
        command<&P::drop>     ("drop",     person,  "SLIDER",                           "The slider's button is let go."),
        command<&P::tab>      ("tab",      person,  "NUMBER",                           "This tab of the panel, counted from 0, is selected."),
        command<&P::answer>   ("answer",   person,  "TEXT|cancel",                      "What is typed at the next input prompt that has no answer yet, or that it is cancelled."),
        command<&P::meanwhile>("meanwhile",person,  "COMMAND …",                        "Queues a command for the midst of another: it is carried out when the panel next raises an event or opens a prompt, before that is done with."),
        command<&P::resume>   ("resume",   person,  "",                                 "Ends what is queued for one event; what is queued behind it is for the next one, or for a prompt."),
        command<&P::wait>     ("wait",     person,  "MILLISECONDS",                     "Time passes; timers that come due tick, in order."),

        command<&L::show>     ("show",     looking, "WIDGET|Screen",                    "What a widget, or the screen, shows."),
        command<&L::items>    ("items",    looking, "WIDGET",                           "Lists the items of a list or combo box."),
        command<&L::drawing>  ("drawing",  looking, "PICTURE",                          "Lists what has been drawn on a picture surface since it was last cleared.", Place::inMemory),
        command<&L::widgets>  ("widgets",  looking, "",                                 "Lists the widgets: name, kind, container."),
        command<&L::set>      ("set",      looking, "WIDGET enabled|visible true|false","Changes the layout under the panel's feet."),
        command<&L::pointer>  ("pointer",  looking, "0|11",                             "Sets the screen's pointer, as a host does that takes the panel's hourglass away."),
        command<&L::shot>     ("shot",     looking, "FILE",                             "Writes a PNG picture of the panel as it stands on the screen.", Place::inWindow),
        command<&L::quit>     ("quit",     looking, "",                                 "Ends the program."),
    });
    // clang-format on
}

}  // namespace Detail

inline constexpr auto kCommands = Detail::commandTable();

}  // namespace Orvo::Script
