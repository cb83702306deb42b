#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <tuple>

#include "Orvo/values/types.h"

namespace Orvo {

/// The entry of a table for an index that counts from `first`; null when there is none.
template <class Table>
constexpr auto entry(const Table& table, int index, int first) -> decltype(table.data()) {
    const int position = index - first;
    const bool exists = position >= 0 && static_cast<std::size_t>(position) < table.size();
    return exists ? table.data() + position : nullptr;
}

/// Channels and pairs are counted from 1.
template <class Table>
constexpr auto entry(const Table& table, int channelOrPair) {
    return entry(table, channelOrPair, 1);
}

/// One table of the rows of several.
template <class Row, std::size_t... kCounts>
constexpr auto joined(const std::array<Row, kCounts>&... tables) {
    std::array<Row, (kCounts + ...)> all{};
    auto end = all.begin();
    ((end = std::copy(tables.begin(), tables.end(), end)), ...);
    return all;
}

/// One table of the rows that `rowsOf(number, part)` has for each channel or pair.
template <class Parts, class RowsOf>
constexpr auto ofEach(const Parts& parts, RowsOf rowsOf) {
    const auto rows = [&](auto& part) {
        return rowsOf(static_cast<Integer>(&part - parts.data() + 1), part);
    };
    return std::apply([&](auto&... part) { return joined(rows(part)...); }, parts);
}

}  // namespace Orvo
