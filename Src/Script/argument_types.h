#pragma once

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

#include "Orvo/core/event_table.h"
#include "Orvo/core/late_binding.h"
#include "Orvo/layout/layout.h"
#include "Orvo/store/user_input.h"
#include "Orvo/widgets/widget_tree.h"
#include "Script/command.h"
#include "Script/literals.h"
#include "Script/text_of.h"

// What commands take. A type says how its words are called in a command's row, and how they are
// read: `static T take(Arguments&)`, which throws Misunderstood.
namespace Orvo::Script {

using Widgets::Kind;
using Widgets::WidgetId;

/// The widget of this name, which must be of one of these kinds; of any when none is given.
WidgetId takeWidget(Arguments& arguments, std::string_view what, std::span<const Kind> kinds);

struct AnyWidget {
    static constexpr std::string_view kWords = "WIDGET";
    static AnyWidget take(Arguments& arguments);
    WidgetId id;
};

/// A widget that stands on the screen.
struct Touchable {
    static constexpr std::string_view kWords = "WIDGET";
    static Touchable take(Arguments& arguments);
    WidgetId id;
};

struct ItemHolder {
    static constexpr std::string_view kWords = "WIDGET";
    static ItemHolder take(Arguments& arguments);
    WidgetId id;
};

struct Slider {
    static constexpr std::string_view kWords = "SLIDER";
    static Slider take(Arguments& arguments);
    WidgetId id;
};

struct Combo {
    static constexpr std::string_view kWords = "COMBO";
    static Combo take(Arguments& arguments);
    WidgetId id;
};

struct Picture {
    static constexpr std::string_view kWords = "PICTURE";
    static Picture take(Arguments& arguments);
    WidgetId id;
};

/// A widget, or the screen itself: no widget.
struct Shown {
    static constexpr std::string_view kWords = "WIDGET|Screen";
    static constexpr std::string_view kScreen = "Screen";
    static Shown take(Arguments& arguments);
    std::optional<WidgetId> id;
};

/// One of a few words; the value is its place among them.
std::size_t takeChoice(Arguments& arguments, std::string_view words);

struct Button {
    static constexpr std::string_view kWords = "[left|right|middle]";
    static Button take(Arguments& arguments);
    Runtime::MouseButton button;
};

struct LayoutProperty {
    static constexpr std::string_view kWords = "enabled|visible";
    static LayoutProperty take(Arguments& arguments);
    enum Property : std::uint8_t { enabled, visible } property;
};

struct Truth {
    static constexpr std::string_view kWords = "true|false";
    static Truth take(Arguments& arguments);
    bool value;
};

struct PointerNumber {
    static constexpr std::string_view kWords = "0|11";
    static PointerNumber take(Arguments& arguments);
    Widgets::Pointer pointer;
};

/// A whole number within bounds.
Long takeNumber(Arguments& arguments, std::string_view what, Long lowest, Long highest);

struct Position {
    static constexpr std::string_view kWords = "POSITION";
    static Position take(Arguments& arguments);
    Integer value;
};

struct KeyCode {
    static constexpr std::string_view kWords = "CODE";
    static KeyCode take(Arguments& arguments);
    Integer value;
};

struct TabNumber {
    static constexpr std::string_view kWords = "NUMBER";
    static TabNumber take(Arguments& arguments);
    Integer value;
};

struct Milliseconds {
    static constexpr std::string_view kWords = "MILLISECONDS";
    static Milliseconds take(Arguments& arguments);
    std::chrono::milliseconds value;
};

struct Text {
    static constexpr std::string_view kWords = "TEXT";
    static Text take(Arguments& arguments);
    String value;
};

struct File {
    static constexpr std::string_view kWords = "FILE";
    static File take(Arguments& arguments);
    String name;
};

/// A text that is typed into a prompt; none cancels it.
struct Answer {
    static constexpr std::string_view kWords = "TEXT|cancel";
    static Answer take(Arguments& arguments);
    std::optional<String> text;
};

struct EventName {
    static constexpr std::string_view kWords = "EVENT";
    static EventName take(Arguments& arguments);
    const Event* event;
};

struct MemberName {
    static constexpr std::string_view kWords = "NAME";
    static MemberName take(Arguments& arguments);
    Long dispatchId;
};

/// A command within a command.
struct Nested {
    static constexpr std::string_view kWords = "COMMAND …";
    static Nested take(Arguments& arguments);
    Action action;
};

/// A call of a member by dispatch id, with its arguments.
struct Call {
    Long dispatchId;
    MemberKind kind;
    std::vector<Value> arguments;
};

/// A call by name. The arguments are literals of the parameters' types; nothing is known of them
/// when the member doesn't exist with this kind, which is for the panel to say.
Call takeCall(Arguments& arguments, MemberKind kind);

template <MemberKind kKind>
struct NamedCall {
    static constexpr std::string_view kWords = kKind == MemberKind::let   ? "NAME [INDEX] VALUE"
                                               : kKind == MemberKind::get ? "NAME [INDEX]"
                                                                          : "NAME [ARGUMENT …]";
    static NamedCall take(Arguments& arguments) { return {takeCall(arguments, kKind)}; }
    Call call;
};

/// A late-bound call; the panel converts the arguments.
struct LateCall {
    static constexpr std::string_view kWords = "DISPID get|let|call [ARGUMENT …]";
    static LateCall take(Arguments& arguments);
    Call call;
};

}  // namespace Orvo::Script
