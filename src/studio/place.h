// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace hx::studio {

/// A place in the project: a recipe, one of its columns, or one of its members; none when there is no recipe.
struct Place {
    std::int64_t recipe = 0;
    std::int64_t member = 0;    ///< 0 for the recipe itself
    bool ofSubRecipe = false;   ///< the member is one
    std::string_view column{};  ///< of the recipe; of project::schema::recipe
    friend bool operator==(const Place&, const Place&) = default;
};

}  // namespace hx::studio
