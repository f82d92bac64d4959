// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace hx::project {

/// Where the row with this ID stands in a list whose IDs (`id`) ascend; nothing when there is none.
template <class Row>
[[nodiscard]] std::optional<std::size_t> positionOf(const std::vector<Row>& rows, std::int64_t id) {
    if (rows.empty() || id < rows.front().id || id > rows.back().id) return std::nullopt;
    // The first and the last one tell how far off this one can be: most projects have few gaps.
    const auto distance = [](std::int64_t from, std::int64_t to) {
        return static_cast<std::uint64_t>(to) - static_cast<std::uint64_t>(from);
    };
    const std::uint64_t last = rows.size() - 1;
    const std::uint64_t fromFront = std::min(last, distance(rows.front().id, id));
    const std::uint64_t fromBack = std::min(last, distance(id, rows.back().id));
    const auto first = rows.begin() + static_cast<std::ptrdiff_t>(last - fromBack);
    const auto end = rows.begin() + static_cast<std::ptrdiff_t>(fromFront) + 1;
    const auto found = std::ranges::lower_bound(first, end, id, {}, &Row::id);
    if (found == end || found->id != id) return std::nullopt;
    return static_cast<std::size_t>(found - rows.begin());
}

}  // namespace hx::project
