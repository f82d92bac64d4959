// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

struct sqlite3_index_info;

namespace hx::jet {
class Table;
}

namespace hx::sqlite {

/// How a statement finds the rows of a Jet table.
struct JetPlan {
    enum class Way { all, key, keyRange, index };

    Way way = Way::all;
    bool fromLeast = false, toGreatest = false;  ///< of a range: which of its ends there are
    std::size_t index = 0;                       ///< which index of the table,
    std::size_t columns = 0;                     ///< and how many of its columns are given

    [[nodiscard]] int number() const noexcept {
        return static_cast<int>(way) | (fromLeast ? 4 : 0) | (toGreatest ? 8 : 0) | static_cast<int>(columns) << 4 |
               static_cast<int>(index) << 12;
    }
    [[nodiscard]] static JetPlan of(int number) noexcept {
        const auto bits = static_cast<unsigned>(number);
        return {static_cast<Way>(bits & 3), (bits & 4) != 0, (bits & 8) != 0, bits >> 12, bits >> 4 & 0xFF};
    }

    /// Chooses the way for what SQLite asks.
    static void choose(jet::Table& table, sqlite3_index_info& info);
};

}  // namespace hx::sqlite
