// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "adapters/jet/bytes.h"
#include "adapters/jet/storage.h"

namespace hx::jet {

class Table;

/// What the database holds, as its system table MSysObjects tells it.
struct Catalog {
    enum class Kind : std::uint8_t { table, systemTable, linked, query };

    struct Entry {
        std::string name;
        Kind kind;
        std::uint32_t page = 0;  ///< of a table's definition
        std::string where;       ///< the database that a linked table is in
        Buffer properties;
    };

    std::vector<Entry> entries;

    [[nodiscard]] const Entry* find(std::string_view name) const;
    [[nodiscard]] static Catalog read(Table& objects);

    static constexpr std::uint32_t objectsPage = 2;
};

}  // namespace hx::jet
