#pragma once

#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "Orvo/layout/layout.h"
#include "Script/looking.h"
#include "Script/person.h"
#include "Script/script_runner.h"
#include "Support/approved.h"

// What tests of recorded sessions compare.
namespace Orvo::Tests {

/// What a script answers on a panel.
template <class Panel>
std::string answersOn(Panel& panel, const std::string& script) {
    std::string answers;
    Script::Session session(panel, panel, {},
                            [&](std::string_view line) { answers.append(line).append("\n"); });
    Script::ScriptLines runner(session, "script");
    std::istringstream lines(script);
    for (std::string line; std::getline(lines, line);) runner.run(line);
    runner.runRest();
    return answers;
}

/// All that a panel shows.
template <class Panel>
std::string stateOf(Panel& panel) {
    std::string state;
    const auto keep = [&](std::string_view line) { state.append(line).append("\n"); };
    Script::Session session(panel, panel, {}, keep);
    keep(Script::Looking::show(session, std::nullopt));
    for (Widgets::WidgetId id = 0; id < Layout::kWidgetCount; ++id) {
        const auto kind = Layout::kindOf(id);
        keep(Layout::describe(id).name);
        keep(Script::Looking::show(session, id));
        if (kind == Layout::Kind::list || kind == Layout::Kind::combo) {
            keep(Script::Looking::items(session, id));
        }
        if (kind == Layout::Kind::picture) keep(Script::Looking::drawing(session, id));
    }
    return state;
}

/// The events that a recording or the answers to it tell of, in whatever stands before them.
inline std::vector<std::string> eventsIn(const std::string& text) {
    std::vector<std::string> events;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const auto at = line.find_first_not_of("# ");
        if (at != std::string::npos && line.substr(at).starts_with("event ")) {
            events.push_back(line.substr(at));
        }
    }
    return events;
}

/// Types one answer after the other, then cancels.
class Typist : public Runtime::Prompter {
public:
    std::optional<String> ask(const Widgets::Question&) override {
        if (texts_.empty()) return std::nullopt;
        const String text = texts_.front();
        texts_.erase(texts_.begin());
        return text;
    }

private:
    std::vector<String> texts_{u"530284", u"A 1", u"B 2", u"Näytös"};
};

}  // namespace Orvo::Tests
