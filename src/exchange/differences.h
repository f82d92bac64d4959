// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "exchange/content.h"

namespace hx::exchange {

/// One thing that is not the same in two contents.
struct Difference {
    enum class Kind { added, removed, changed };
    Kind kind = Kind::changed;
    std::string recipe;  ///< empty for members without a recipe
    std::string member;  ///< what it is, as a person reads it; empty for the recipe itself
    std::string column;  ///< that has changed; empty when the whole is meant
    Value before, after;
};

/// What counts as a difference.
struct Comparison {
    bool absentColumns = true;  ///< that one side has the column and the other has not
    bool removed = true;        ///< that a recipe is only in the first
    bool changed = true;        ///< that a recipe is another one in the second
};

/// From `before` to `after`, by meaning: recipes are the same when their names are, ignoring case; members when they
/// are the same variable or the same sub-recipe. IDs do not count, the order of members does.
[[nodiscard]] std::vector<Difference> compare(const Content& before, const Content& after, const Comparison& what);
/// The same of two recipes of one name.
[[nodiscard]] std::vector<Difference> compare(const ContentRecipe& before, const ContentRecipe& after,
                                              bool absentColumns);

/// For each member the number of the same one in another list; none when it is new there.
using Partners = std::vector<std::optional<std::size_t>>;
/// Of several that could be meant those are taken that are the same in every column.
[[nodiscard]] Partners partnersOf(const std::vector<ContentMember>& before, const std::vector<ContentMember>& after,
                                  bool absentColumns);
[[nodiscard]] bool hasSameColumns(const ContentMember& before, const ContentMember& after, bool absentColumns);

}  // namespace hx::exchange
