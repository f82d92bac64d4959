// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace hx::project {

/// Where the first row with this ID stands in a list whose IDs (`id`) ascend; nothing when there is none. IDs that
/// appear twice, as a table without a key of its own may hold them, only make it slower.
template <class Row>
[[nodiscard]] std::optional<std::size_t> positionOf(const std::vector<Row>& rows, std::int64_t id) {
    if (rows.empty() || id < rows.front().id || id > rows.back().id) return std::nullopt;
    const auto foundIn = [&](std::uint64_t first, std::uint64_t last) -> std::optional<std::size_t> {
        const auto place = [&](std::uint64_t number) { return rows.begin() + static_cast<std::ptrdiff_t>(number); };
        const auto found = std::ranges::lower_bound(place(first), place(last), id, {}, &Row::id);
        if (found == rows.end() || found->id != id) return std::nullopt;
        return static_cast<std::size_t>(found - rows.begin());
    };
    // The first and the last one tell how far off this one can be, if all differ: most projects have few gaps.
    const auto distance = [](std::int64_t from, std::int64_t to) {
        return static_cast<std::uint64_t>(to) - static_cast<std::uint64_t>(from);
    };
    const std::uint64_t last = rows.size() - 1;
    const std::uint64_t highest = std::min(last, distance(rows.front().id, id));
    const std::uint64_t lowest = last - std::min(last, distance(id, rows.back().id));
    if (lowest <= highest) {
        const auto found = foundIn(lowest, highest);
        if (found && (*found == 0 || rows[*found - 1].id != id)) return found;
    }
    return foundIn(0, rows.size());
}

}  // namespace hx::project
