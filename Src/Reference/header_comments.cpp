#include "Reference/header_comments.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "Orvo/core/event_table.h"
#include "Orvo/core/member_table.h"
#include "Script/help.h"
#include "Script/text_of.h"

namespace Orvo::Script {
namespace {

constexpr std::string_view kMark = "///";
constexpr std::size_t kColumns = 100;

struct Documented {
    std::string declaration;  ///< how it begins
    std::string comment;
};

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream rest(text);
    for (std::string line; std::getline(rest, line);) lines.push_back(line);
    return lines;
}

std::string wrappedParagraph(const std::string& paragraph, const std::string& margin) {
    std::string text;
    std::string row = margin;
    std::istringstream words(paragraph);
    for (std::string word; words >> word; row += ' ' + word) {
        if (row.size() + 1 + word.size() <= kColumns) continue;
        text += row + '\n';
        row = margin;
    }
    return text + row + '\n';
}

std::string withComments(const std::string& header, const std::vector<Documented>& all) {
    std::string text;
    auto next = all.begin();
    for (const std::string& line : linesOf(header)) {
        const std::size_t indent = std::min(line.find_first_not_of(' '), line.size());
        if (line.compare(indent, kMark.size(), kMark) == 0) continue;
        if (next != all.end() && line.find(next->declaration) == indent) {
            text += comment(next->comment, indent);
            ++next;
        }
        text += line + '\n';
    }
    if (next != all.end())
        throw std::logic_error("Not declared in its place: " + next->declaration);
    return text;
}

template <class Row>
Documented documented(ValueType result, const Row& row) {
    const auto type = result == ValueType::none ? "void" : nameOf(result);
    return {"virtual " + std::string(type) + ' ' + std::string(row.name) + '(',
            contractText(contractOf(row), ' ')};
}

}  // namespace

std::string wrapped(const std::string& text, const std::string& margin) {
    std::string lines;
    for (const std::string& paragraph : linesOf(text)) lines += wrappedParagraph(paragraph, margin);
    return lines;
}

std::string comment(const std::string& text, std::size_t indent) {
    return wrapped(text, std::string(indent, ' ').append(kMark));
}

std::string withMemberContracts(const std::string& header) {
    std::vector<Documented> all{{"class MarvaneAssistantInterface", std::string(kMemberRules)}};
    for (const Member& member : kMembers) all.push_back(documented(member.result, member));
    return withComments(header, all);
}

std::string withEventContracts(const std::string& header) {
    std::vector<Documented> all{{"class MarvaneAssistantEvents", std::string(kEventRules)}};
    for (const Event& event : kEvents) all.push_back(documented(ValueType::none, event));
    return withComments(header, all);
}

}  // namespace Orvo::Script
