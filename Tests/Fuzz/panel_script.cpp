#include <algorithm>
#include <string>
#include <vector>

#include "Fuzz/fuzz.h"
#include "Fuzz/hurried_panel.h"
#include "Orvo/store/screen.h"
#include "Script/session.h"

// A session. Each command has one closing line, and that is the last of its answer; a command that
// isn't understood, or that isn't there, changes nothing.
namespace Orvo::Fuzz {
namespace {

using namespace Script;

class Interview final : Runtime::Screen {
public:
    Interview() { look(); }
    ~Interview() override { panel_.store().showOn(nullptr); }
    Interview(const Interview&) = delete;
    Interview& operator=(const Interview&) = delete;

    void say(std::string_view line) {
        answers_.clear();
        hasChanged_ = false;
        const auto before = panel_.store().now();
        const bool isComplaint = session_.run(line).has_value();
        const bool isChanged = hasChanged_ || panel_.store().now() != before;
        if (answers_.empty()) return expect(!isChanged, "silence has changed the panel", line);
        const auto closings = std::ranges::count_if(answers_, isClosing);
        expect(closings == 1 && isClosing(answers_.back()), "not one closing line", line);
        if (!answers_.front().starts_with("? ")) return;
        expect(isComplaint, "a complaint was not reported", line);
        expect(!isChanged, "a complaint has changed the panel", line);
    }

    [[nodiscard]] bool isOver() const { return session_.hasQuit(); }

private:
    void changed(Widgets::WidgetId /*widget*/) override { hasChanged_ = true; }
    void pointerChanged() override { hasChanged_ = true; }

    void look() {
        panel_.store().showOn(this);
        hasChanged_ = true;
    }

    bool hasChanged_ = false;
    std::vector<std::string> answers_;
    HurriedPanel panel_;
    Connection renewals_ = panel_.onRenewed([this] { look(); });
    Session session_{
        panel_, panel_, {}, [this](std::string_view answer) { answers_.emplace_back(answer); }};
};

}  // namespace

void attackByScript(std::string_view input) {
    Bytes lines(input);
    Interview interview;
    while (!lines.isAtEnd() && !interview.isOver()) interview.say(lines.takeUntil('\n'));
}

}  // namespace Orvo::Fuzz
