#include "Support/bench.h"

#include <utility>

#include "Orvo/core/event_table.h"
#include "Orvo/values/text.h"

namespace Orvo::Tests {
namespace {

std::string textOf(const Value& value) {
    return toUtf8(std::get<String>(convert(value, ValueType::string)));
}

}  // namespace

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

bool PanelTest::isLit(Widgets::ShapeRef lamp) const {
    return store_.get<Runtime::StoredShape>(lamp).state().isLit();
}

String PanelTest::caption(Widgets::LabelRef label) const {
    return store_.get<Runtime::StoredLabel>(label).state().caption;
}

bool PanelTest::isEnabled(Widgets::WidgetId widget) const {
    return store_.widget(widget).isEnabled();
}

bool PanelTest::isChecked(Widgets::CheckRef check) const {
    return store_.get<Runtime::StoredCheck>(check).state().value == Widgets::CheckValue::checked;
}

Integer PanelTest::position(Widgets::SliderRef slider) const {
    return store_.get<Runtime::StoredSlider>(slider).state().position;
}

std::string PanelTest::digits(const Layout::Readout& readout) const {
    std::string shown;
    for (const auto place : readout.digits()) {
        const auto digit = store_.get<Runtime::StoredDigit>(place).state().digit;
        shown += digit ? std::to_string(*digit) : "_";
    }
    return shown;
}

PanelTest::Lines PanelTest::takeLines() { return std::exchange(lines_, {}); }

}  // namespace Orvo::Tests
