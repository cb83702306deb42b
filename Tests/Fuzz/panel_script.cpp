#include <algorithm>
#include <string>
#include <vector>

#include "Fuzz/fuzz.h"
#include "Fuzz/hurried_panel.h"
#include "Orvo/layout/roles.h"
#include "Script/looking.h"
#include "Script/session.h"
#include "Script/text_of.h"

// A session. Each command has one closing line, and that is the last of its answer; a command that
// isn't understood, or that isn't there, changes nothing.
namespace Orvo::Fuzz {
namespace {

using namespace Script;

/// What can be seen of the panel.
std::string lookAt(StorePanel& panel) {
    std::string seen;
    const auto keep = [&seen](std::string_view line) { seen.append(line) += '\n'; };
    const Runtime::Store& widgets = panel.store();
    for (Widgets::WidgetId id = 0; id < Layout::kWidgetCount; ++id) {
        keep(Looking::describe(widgets, id));
    }
    keep(std::to_string(panel.panel().ReadOnly().raw()));
    keep(std::to_string(panel.panel().IdDevice()));
    keep(std::to_string(widgets.now().count()));
    keep(std::to_string(static_cast<int>(widgets.pointer())));
    for (const String& item : widgets.get<Runtime::StoredList>(Layout::kCommon.log).state().items) {
        keep(textOf(StringView(item)));
    }
    return seen;
}

bool isClosing(std::string_view answer) {
    return answer == "ok" || answer.starts_with("= ") || answer.starts_with("! ") ||
           answer.starts_with("? ");
}

class Interview {
public:
    void say(std::string_view line) {
        const std::string before = seen_;
        answers_.clear();
        const bool isComplaint = session_.run(line).has_value();
        seen_ = lookAt(panel_);
        const auto closings = std::ranges::count_if(answers_, isClosing);
        if (answers_.empty()) return expect(before == seen_, "silence has changed the panel", line);
        expect(closings == 1 && isClosing(answers_.back()), "not one closing line", line);
        if (!answers_.front().starts_with("? ")) return;
        expect(isComplaint, "a complaint was not reported", line);
        expect(before == seen_, "a complaint has changed the panel", line);
    }

    [[nodiscard]] bool isOver() const { return session_.hasQuit(); }

private:
    std::vector<std::string> answers_;
    HurriedPanel panel_;
    Session session_{
        panel_, panel_, {}, [this](std::string_view answer) { answers_.emplace_back(answer); }};
    std::string seen_ = lookAt(panel_);
};

}  // namespace

void attackByScript(std::string_view input) {
    Bytes lines(input);
    Interview interview;
    while (!lines.isAtEnd() && !interview.isOver()) interview.say(lines.takeUntil('\n'));
}

}  // namespace Orvo::Fuzz
