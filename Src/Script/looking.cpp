#include "Script/looking.h"

#include <concepts>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "Script/answers.h"
#include "Script/text_of.h"

namespace Orvo::Script::Looking {
namespace {

using namespace Runtime;

// "name=value" behind a blank.
std::string property(std::string_view name, std::string_view value) {
    return ' ' + std::string(name) + '=' + std::string(value);
}

template <std::integral Number>
std::string property(std::string_view name, Number value) {
    return property(name, std::to_string(value));
}

std::string property(std::string_view name, bool value) { return property(name, textOf(value)); }
std::string property(std::string_view name, const String& value) {
    return property(name, textOf(StringView(value)));
}
std::string property(std::string_view name, Colour value) { return property(name, textOf(value)); }

std::string enabled(const StoredWidget& widget) { return property("enabled", widget.isEnabled()); }

std::string properties(const StoredLabel& label) {
    return property("caption", label.state().caption) + property("color", label.state().colour);
}

std::string properties(const StoredShape& shape) {
    return property("fill", std::string_view(shape.state().isLit() ? "solid" : "transparent"));
}

std::string properties(const StoredLine& line) { return property("color", line.state().colour); }

std::string properties(const StoredOption& option) {
    return property("value", option.state().value) + enabled(option);
}

std::string properties(const StoredCheck& check) {
    return property("value", static_cast<int>(check.state().value)) + enabled(check);
}

std::string properties(const StoredButton& button) { return enabled(button); }

std::string properties(const StoredCombo& combo) {
    return property("text", combo.state().text) + property("items", combo.state().items.size()) +
           enabled(combo);
}

std::string properties(const StoredList& list) {
    return property("items", list.state().items.size());
}

std::string properties(const StoredTimer& timer) {
    return enabled(timer) + property("interval", timer.state().interval.count());
}

std::string properties(const StoredPicture& picture) {
    return property("width", picture.width()) + property("height", picture.height());
}

std::string properties(const StoredTabs& tabs) {
    std::string list;
    for (const bool isEnabled : tabs.state().enabled) {
        list.append(list.empty() ? "" : ",").append(textOf(isEnabled));
    }
    return property("tab", tabs.state().current) + property("enabled", std::string_view(list));
}

std::string properties(const StoredDigit& digit) {
    const auto shown = digit.state().digit;
    return property("value", shown ? std::string_view(std::to_string(*shown)) : "none");
}

std::string properties(const StoredSlider& slider) {
    const SliderState& state = slider.state();
    return property("position", state.position) + property("maximum", state.maximum) +
           enabled(slider) + property("held", state.isHeld);
}

std::string properties(const StoredStill& /*still*/) { return {}; }

std::string textOfItem(const String& item) { return textOf(StringView(item)); }

using Lines = std::vector<std::string>;

void add(Lines& lines, const LineSegment& line) {
    lines.push_back("line " + textOf(line.from) + ' ' + textOf(line.to) + ' ' +
                    textOf(line.colour));
}

void add(Lines& lines, const Widgets::Trace& trace) {
    for (std::size_t i = 1; i < trace.samples.size(); ++i) add(lines, segmentTo(trace, i));
}

void add(Lines& lines, const DrawnText& text) {
    lines.push_back("text " + textOf(text.at) + ' ' + textOf(StringView(text.text)) + ' ' +
                    textOf(text.colour) + ' ' + textOf(text.points));
}

std::string_view containerOf(const Layout::Widget& widget) {
    if (widget.container == Layout::kPanel) return "MarvaneAssistant";
    return Layout::describe(widget.container).name;
}

}  // namespace

std::string describe(const Store& widgets, WidgetId widget) {
    const Kind kind = Layout::kindOf(widget);
    const bool showsItself = kind != Kind::timer;
    return std::string(nameOf(kind)) +
           (showsItself ? property("visible", widgets.widget(widget).isVisible()) : "") +
           StoredKinds::visit(kind, [&]<class Stored>(std::type_identity<Stored> /*kind*/) {
               return properties(widgets.get<Stored>(widget));
           });
}

std::string show(const Session& session, std::optional<WidgetId> widget) {
    const Store& widgets = session.person().store();
    if (widget) return resultIs(describe(widgets, *widget));
    return resultIs("screen" + property("pointer", static_cast<int>(widgets.pointer())));
}

std::string items(const Session& session, WidgetId widget) {
    const Store& widgets = session.person().store();
    if (Layout::kindOf(widget) == Kind::combo) {
        return listed(session, widgets.get<StoredCombo>(widget).state().items, textOfItem);
    }
    return listed(session, widgets.get<StoredList>(widget).state().items, textOfItem);
}

std::string drawing(const Session& session, WidgetId picture) {
    Lines lines;
    const Store& widgets = session.person().store();
    for (const Drawn& drawn : widgets.get<StoredPicture>(picture).state().drawing) {
        std::visit([&lines](const auto& one) { add(lines, one); }, drawn);
    }
    return listed(session, lines, std::identity());
}

std::string widgets(const Session& session) {
    return listed(session, Layout::kWidgets, [](const Layout::Widget& widget) {
        return std::string(widget.name)
            .append(" ")
            .append(nameOf(widget.style.kind))
            .append(" ")
            .append(containerOf(widget));
    });
}

void set(Session& session, WidgetId widget, LayoutProperty property, bool value) {
    Store& widgets = session.person().store();
    if (property == LayoutProperty::enabled) {
        widgets.enable(widget, value);
    } else {
        widgets.show(widget, value);
    }
}

void pointer(Session& session, Widgets::Pointer pointer) {
    session.person().store().mousePointer().setPointer(pointer);
}

}  // namespace Orvo::Script::Looking
