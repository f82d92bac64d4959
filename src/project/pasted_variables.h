// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hx::project {

/// A line that is pasted into a recipe.
struct PastedVariable {
    std::string name;
    bool isThere = false;  ///< the recipe has it, or an earlier line names it
    friend bool operator==(const PastedVariable&, const PastedVariable&) = default;
};

/// The variables that lines of text or the first column of a table name, in their order. `present` are those of the
/// recipe. Empty lines name none.
[[nodiscard]] std::vector<PastedVariable> pastedVariables(std::string_view text, std::span<const std::string> present);

}  // namespace hx::project
