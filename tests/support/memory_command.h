// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace hx::support {

/// The part of Jet SQL that the recipe editor writes, taken apart: SELECT * or columns FROM one table, DELETE *
/// FROM one table, WHERE and ORDER BY as text.
struct MemoryCommand {
    bool deletes = false;
    std::string table;
    std::vector<std::string> columns;  ///< empty for all
    std::string condition;
    std::vector<std::pair<std::string, bool>> order;  ///< column, descending

    /// Throws dbErrBadCommand.
    [[nodiscard]] static MemoryCommand parse(std::string_view text);
};

}  // namespace hx::support
