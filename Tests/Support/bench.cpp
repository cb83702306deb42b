#include "Support/bench.h"

#include <utility>

#include "Orvo/values/text.h"

namespace Orvo::Tests {
namespace {

std::string textOf(const Value& value) {
    return toUtf8(std::get<String>(convert(value, ValueType::string)));
}

}  // namespace

Widgets::WidgetId id(std::string_view name) {
    const auto found = Layout::findWidget(name);
    EXPECT_TRUE(found.has_value()) << name;
    return found.value_or(0);
}

std::string lineOf(Long dispatchId, std::span<const Value> arguments) {
    std::string line(eventWith(dispatchId).name);
    for (const Value& argument : arguments) line += ' ' + textOf(argument);
    return line;
}

PanelTest::PanelTest() {
    connection_ = panel_.connect([this](Long dispatchId, std::span<Value> arguments) {
        lines_.push_back(lineOf(dispatchId, arguments));
    });
    panel_.setErrorHandler([this](const Error& error) {
        lines_.push_back("! " + std::to_string(error.number()) + ' ' + error.description());
    });
}

bool PanelTest::isLit(std::string_view shape) const {
    return store_.get<Runtime::StoredShape>(id(shape)).state().isLit();
}

String PanelTest::caption(std::string_view label) const {
    return store_.get<Runtime::StoredLabel>(id(label)).state().caption;
}

bool PanelTest::isEnabled(std::string_view widget) const {
    return store_.widget(id(widget)).isEnabled();
}

bool PanelTest::isChecked(std::string_view check) const {
    return store_.get<Runtime::StoredCheck>(id(check)).state().value ==
           Widgets::CheckValue::checked;
}

Integer PanelTest::position(std::string_view slider) const {
    return store_.get<Runtime::StoredSlider>(id(slider)).state().position;
}

std::string PanelTest::digits(const std::vector<std::string_view>& names) const {
    std::string shown;
    for (const std::string_view name : names) {
        const auto digit = store_.get<Runtime::StoredDigit>(id(name)).state().digit;
        shown += digit ? std::to_string(*digit) : "_";
    }
    return shown;
}

PanelTest::Lines PanelTest::takeLines() { return std::exchange(lines_, {}); }

}  // namespace Orvo::Tests
