#include "Orvo/ports/natural_order.h"

#include <algorithm>
#include <compare>

namespace Orvo::Runtime {
namespace {

bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

// The digits that the text begins with, less leading zeros; takes them off the text.
StringView takeNumber(StringView& text) {
    const auto* const end = std::find_if_not(text.begin(), text.end(), isDigit);
    const StringView digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    return digits.substr(std::min(digits.find_first_not_of(u'0'), digits.size()));
}

std::strong_ordering takeAndCompare(StringView& left, StringView& right) {
    if (isDigit(left.front()) && isDigit(right.front())) {
        const StringView leftNumber = takeNumber(left);
        const StringView rightNumber = takeNumber(right);
        if (leftNumber.size() != rightNumber.size())
            return leftNumber.size() <=> rightNumber.size();
        return leftNumber <=> rightNumber;
    }
    const auto order = left.front() <=> right.front();
    left.remove_prefix(1);
    right.remove_prefix(1);
    return order;
}

}  // namespace

bool naturallyBefore(StringView left, StringView right) {
    StringView leftRest = left;
    StringView rightRest = right;
    while (!leftRest.empty() && !rightRest.empty()) {
        const auto order = takeAndCompare(leftRest, rightRest);
        if (std::is_neq(order)) return std::is_lt(order);
    }
    if (leftRest.empty() != rightRest.empty()) return leftRest.empty();
    return left < right;
}

}  // namespace Orvo::Runtime
