#include <regex>
#include <span>

#include "Script/session.h"
#include "Script/text_of.h"
#include "Support/approved.h"
#include "Support/operation_log.h"

// operations.txt has commands in panel script, and below each what the panel then does to its
// widgets and answers. An empty line begins afresh.
namespace Orvo::Tests {
namespace {

const char* const kPath = ORVO_TESTS "/Orvo/core/operations.txt";
const char* const kGrid = "call DisegnaAssi 1";
constexpr std::string_view kCommand = "> ";
constexpr std::string_view kAnswer = "-> ";

// A panel whose start-up is observed as well.
class PanelFromStart final : public Script::PanelOwner, public Script::Person {
public:
    explicit PanelFromStart(OperationLog& log) : log_(log) {
        exchange([] {});
    }

    MarvaneAssistant& panel() override { return *panel_; }
    Runtime::Store& store() override { return *store_; }

private:
    void exchange(const std::function<void()>& /*ending*/) override {
        const auto store = Runtime::Store::create();
        store->observeWith(&log_);
        panel_ = std::make_unique<MarvaneAssistant>(store);
        store_ = store;
    }

    OperationLog& log_;
    std::shared_ptr<Runtime::Store> store_;
    std::unique_ptr<MarvaneAssistant> panel_;
};

// What the last of these commands does to a fresh panel.
Operations run(std::span<const std::string> commands, std::optional<std::size_t> failAt = {}) {
    OperationLog log;
    PanelFromStart panel(log);
    Script::Session session(panel, panel, {}, [&](std::string_view answer) {
        if (answer != "ok") log.seen.push_back(std::string(kAnswer).append(answer));
    });
    for (const std::string& command : commands) {
        log.seen.clear();
        if (&command == &commands.back()) log.failAt = failAt;
        session.run(command);
    }
    return log.seen;
}

// A line for each, but one for all the items that a list gets in a row.
std::string listed(const Operations& operations) {
    std::string text;
    std::string_view last;
    for (const std::string& operation : operations) {
        const std::size_t end = operation.find(' ', operation.find(' ') + 1);
        const auto doing = std::string_view(operation).substr(0, end);
        if (doing == last && doing.ends_with("addItem")) {
            text.insert(text.size() - 1, operation, doing.size());
        } else {
            text += operation + '\n';
        }
        last = doing;
    }
    return text;
}

// A scope's grid stands in full only under the command that draws nothing else.
std::string withoutGrids(std::string text) {
    static const std::string grid = listed(run({{kGrid}}));
    const auto nameOf = [](const Layout::Channel& channel) {
        return std::string(Layout::describe(channel.scope).name);
    };
    for (const Layout::Channel& channel : Layout::kChannels) {
        const std::string picture = nameOf(channel);
        const auto its =
            std::regex_replace(grid, std::regex(nameOf(Layout::kChannels[0])), picture);
        const auto at = text.find(its);
        if (at != std::string::npos) text.replace(at, its.size(), picture + " (the grid)\n");
    }
    return text;
}

struct Kept {
    std::string heading;
    Operations commands;  // those before it on the same panel, and itself
};

std::vector<Kept> keptCommands() {
    std::vector<Kept> all;
    Kept next;
    std::istringstream kept(textIn(kPath));
    for (std::string line; std::getline(kept, line);) {
        const bool isCommand = line.starts_with(kCommand);
        if (line.empty()) next.commands.clear();
        if (isCommand) next.commands.push_back(line.substr(kCommand.size()));
        if (isCommand || line.empty() || line.starts_with('#')) next.heading += line + '\n';
        if (isCommand) all.push_back(next);
        if (isCommand) next.heading.clear();
    }
    return all;
}

TEST(Operations, AreDoneInTheirOrder) {
    std::string actual;
    for (const auto& [heading, commands] : keptCommands()) {
        const std::string text = listed(run(commands));
        actual += heading + (commands.back() == kGrid ? text : withoutGrids(text));
    }
    expectAsKept(kPath, actual);
}

TEST(Operations, EndWithTheOneThatFails) {
    for (const auto& [heading, commands] : keptCommands()) {
        SCOPED_TRACE(heading);
        const Operations whole = run(commands);
        for (std::size_t i = 0; i < whole.size(); ++i) {
            if (whole[i].starts_with(kAnswer)) continue;
            Operations expected(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(i) + 1);
            expected.push_back("-> ! 7 Gone");
            ASSERT_EQ(run(commands, i), expected);
        }
    }
}

TEST(Operations, AreKeptOfEveryMember) {
    const std::string kept = textIn(kPath);
    for (const Member& member : kMembers) {
        const std::string command = "\n> " + Script::commandText(member, {}) + "[ \n]";
        EXPECT_TRUE(std::regex_search(kept, std::regex(command))) << command;
    }
}

}  // namespace
}  // namespace Orvo::Tests
