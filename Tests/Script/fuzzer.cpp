#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <string>
#include <vector>

#include "Orvo/layout/roles.h"
#include "Script/looking.h"
#include "Script/session.h"
#include "Script/store_panel.h"
#include "Script/text_of.h"

// Runs mutated commands: console_fuzzer DIRECTORY [SECONDS [SEED]]. The commands come from the
// transcripts in the directory.
namespace {

using namespace Orvo;
using namespace Orvo::Script;

using Lines = std::vector<std::string>;

Lines commandsIn(const std::filesystem::path& directory) {
    Lines commands;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(directory)) {
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            if (line.starts_with("> ")) commands.push_back(line.substr(2));
        }
    }
    return commands;
}

class Mutator {
public:
    Mutator(Lines commands, unsigned seed) : commands_(std::move(commands)), random_(seed) {}

    std::size_t below(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
    }

    std::string next() {
        std::string line = any();
        for (std::size_t changes = below(4); changes > 0; --changes) change(line);
        return line;
    }

private:
    const std::string& any() { return commands_[below(commands_.size())]; }

    void change(std::string& line) {
        static const std::string kPieces[] = {
            "\"", "\\", "\\u", "\\uD800", "[", "]",    ":[", " ",    "\t",   "#",
            "0x", "-",  "+",   "99999",   "(", "true", "on", "Mute", "\xC3", std::string(1, '\0')};
        const std::size_t at = below(line.size() + 1);
        switch (below(7)) {
            case 0:
                line.insert(at, kPieces[below(std::size(kPieces))]);
                break;
            case 1:
                line.erase(at, 1 + below(6));
                break;
            case 2:
                line.insert(at, 1, static_cast<char>(below(256)));
                break;
            case 3:
                line.insert(at, line.substr(below(line.size() + 1), below(12)));
                break;
            case 4:
                line = line.substr(0, at) + any().substr(0, below(20));
                break;
            case 5:
                line.insert(0, any().substr(0, below(16)) + ' ');
                break;
            default:
                line.insert(at, below(2000), "0 (\"[a"[below(6)]);
        }
    }

    Lines commands_;
    std::mt19937 random_;
};

/// Everything that can be seen of the panel.
std::string stateOf(StorePanel& panel) {
    std::string state;
    const auto keep = [&state](std::string_view line) { state.append(line) += '\n'; };
    const Runtime::Store& widgets = panel.store();
    for (Widgets::WidgetId id = 0; id < Layout::kWidgetCount; ++id) {
        keep(Looking::describe(widgets, id));
    }
    for (const std::string_view name : {"ReadOnly", "IdDevice"}) {
        keep(textOf(panel.panel().invoke(*dispatchIdOf(name), MemberKind::get).value));
    }
    keep(std::to_string(widgets.now().count()));
    keep(std::to_string(static_cast<int>(widgets.pointer())));
    for (const String& item : widgets.get<Runtime::StoredList>(Layout::kCommon.log).state().items) {
        keep(textOf(StringView(item)));
    }
    return state;
}

/// One panel and what is wrong with its answers.
class Trial {
public:
    /// Empty when all is well.
    std::string run(const std::string& line) {
        const std::string before = state_;
        answers_.clear();
        const bool isComplaint = session_.run(line).has_value();
        state_ = stateOf(panel_);
        if (answers_.empty()) return before == state_ ? "" : "silence has changed the panel";
        for (const std::string& answer : answers_) {
            if (isClosing(answer) != (&answer == &answers_.back())) return "not one closing line";
        }
        const bool isWholeComplaint = answers_.size() == 1 && answers_.front().starts_with("? ");
        if (isWholeComplaint && !isComplaint) return "a complaint was not reported";
        if (isWholeComplaint && before != state_) return "a complaint has changed the panel";
        return "";
    }

private:
    static bool isClosing(const std::string& answer) {
        return answer == "ok" || answer.starts_with("= ") || answer.starts_with("! ") ||
               answer.starts_with("? ");
    }

    Lines answers_;
    StorePanel panel_;
    Session session_{
        panel_, panel_, {}, [this](std::string_view answer) { answers_.emplace_back(answer); }};
    std::string state_ = stateOf(panel_);
};

// Ticks by the million are slow, not wrong.
bool waitsLong(const std::string& line) {
    const auto wait = line.find("wait");
    return wait != std::string::npos && line.find_first_of("x23456789", wait) != std::string::npos;
}

int fuzz(const std::string& directory, std::chrono::seconds time, unsigned seed) {
    constexpr int kLinesPerPanel = 50;
    Mutator mutator(commandsIn(directory), seed);
    const auto end = std::chrono::steady_clock::now() + time;
    std::size_t count = 0;
    while (std::chrono::steady_clock::now() < end) {
        Trial trial;
        for (int i = 0; i < kLinesPerPanel; ++i) {
            const std::string line = mutator.next();
            if (waitsLong(line)) continue;
            const std::string fault = trial.run(line);
            if (!fault.empty()) {
                std::cerr << fault << ", seed " << seed << ": " << line << '\n';
                return 1;
            }
            ++count;
        }
    }
    std::cout << count << " lines, seed " << seed << '\n';
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const auto number = [&](int position, int otherwise) {
        return argc > position ? std::atoi(argv[position]) : otherwise;
    };
    if (argc < 2) return 2;
    return fuzz(argv[1], std::chrono::seconds(number(2, 2)), static_cast<unsigned>(number(3, 1)));
}
