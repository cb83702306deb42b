#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Orvo/values/text.h"
#include "Support/bench.h"

namespace Orvo::Tests {

using Operations = std::vector<std::string>;

template <class... Visitors>
struct Overloaded : Visitors... {
    using Visitors::operator()...;
};
template <class... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;

/// Writes down what is done to the widgets, and may let one of the operations fail.
class OperationLog final : public Runtime::OperationObserver {
public:
    explicit OperationLog(std::optional<std::size_t> failAt = {}) : failAt_(failAt) {}

    void before(const Runtime::Operation& operation) override {
        seen.push_back(textOf(operation));
        if (seen.size() - 1 == failAt_) throw Error(7, "Gone");
    }

    Operations seen;

private:
    static std::string textOf(Widgets::Point point) {
        return std::to_string(point.x) + ',' + std::to_string(point.y);
    }
    static std::string textOf(const Runtime::Operation& operation) {
        const auto value =
            std::visit(Overloaded{[](std::monostate) { return std::string(); },
                                  [](auto number) { return std::to_string(number); },
                                  [](StringView text) { return toUtf8(text); },
                                  [](Colour colour) { return testing::PrintToString(colour); },
                                  [](const Runtime::LineSegment& line) {
                                      return textOf(line.from) + ' ' + textOf(line.to);
                                  }},
                       operation.value);
        return (operation.widget ? std::to_string(*operation.widget) : "-") + ' ' +
               std::to_string(static_cast<int>(operation.verb)) + ' ' +
               std::to_string(operation.tab) + ' ' + value;
    }

    std::optional<std::size_t> failAt_;
};

}  // namespace Orvo::Tests
