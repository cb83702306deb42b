#include "Support/bench.h"

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

}  // namespace Orvo::Tests
