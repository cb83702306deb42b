#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Orvo/values/text.h"
#include "Support/bench.h"

namespace Orvo::Tests {

using Operations = std::vector<std::string>;

/// A verb's name as its declaration has it: what the compiler writes behind "Verb::".
template <Runtime::Verb kVerb>
constexpr std::string_view nameOfVerb() {
    std::string_view name = __PRETTY_FUNCTION__;
    name.remove_prefix(name.find("Verb::") + std::string_view("Verb::").size());
    return name.substr(0, name.find_first_of(";]"));
}

inline std::string_view nameOf(Runtime::Verb verb) {
    static constexpr auto kNames = []<std::size_t... kVerb>(std::index_sequence<kVerb...>) {
        return std::array{nameOfVerb<static_cast<Runtime::Verb>(kVerb)>()...};
    }
    (std::make_index_sequence<static_cast<std::size_t>(Runtime::Verb::ask) + 1>());
    return kNames[static_cast<std::size_t>(verb)];
}

/// Writes down what is done to the widgets, a line each: "Shape34 setFillStyle 0". It may let one
/// of the operations fail.
class OperationLog final : public Runtime::OperationObserver {
public:
    void before(const Runtime::Operation& operation) override {
        seen.push_back(textOf(operation));
        if (seen.size() - 1 == failAt) throw Error(7, "Gone");
    }

    Operations seen;
    std::optional<std::size_t> failAt;  // its place among those seen

private:
    static std::string textOf(const Runtime::Operation& operation) {
        std::ostringstream out;
        out << (operation.widget ? Layout::describe(*operation.widget).name : "Screen") << ' '
            << nameOf(operation.verb);
        if (isOfTab(operation.verb)) out << ' ' << operation.tab;
        std::visit([&](const auto& value) { write(out, value); }, operation.value);
        return out.str();
    }
    static bool isOfTab(Runtime::Verb verb) {
        return verb == Runtime::Verb::readTabEnabled || verb == Runtime::Verb::setTabEnabled;
    }

    static void write(std::ostream& /*out*/, std::monostate /*none*/) {}
    static void write(std::ostream& out, auto number) { out << ' ' << number; }
    static void write(std::ostream& out, StringView text) { out << " \"" << toUtf8(text) << '"'; }
    static void write(std::ostream& out, Colour colour) {
        out << ' ' << testing::PrintToString(colour);
    }
    static void write(std::ostream& out, const Runtime::LineSegment& line) {
        out << ' ' << line.from.x << ',' << line.from.y << ' ' << line.to.x << ',' << line.to.y;
        write(out, line.colour);
    }
};

}  // namespace Orvo::Tests
