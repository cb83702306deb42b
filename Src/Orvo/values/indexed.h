#pragma once

#include <cstddef>

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

}  // namespace Orvo
