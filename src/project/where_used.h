// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "project/reader.h"

namespace hx::project {

/// Something that refers to a variable or a recipe.
struct Reference {
    enum class Kind { column, variable, fileName, subRecipe, indirect };
    Kind kind;
    std::int64_t recipe;      ///< that refers; may be none that exists
    std::int64_t member = 0;  ///< of it, but for a column or an indirect one
    std::string_view column;
    std::int64_t other = 0;  ///< the sub-recipe that is meant, or through which
};

/// What refers to a variable, or to a recipe by its name or ID, directly and through sub-recipes.
class WhereUsed {
  public:
    /// What the reader throws is passed on.
    WhereUsed(Reader& reader, std::string name);
    /// What refers to the recipe with this ID, and to nothing else of its name.
    WhereUsed(Reader& reader, std::int64_t recipe);

    [[nodiscard]] const std::vector<RecipeEntry>& recipes() const noexcept { return recipes_; }  ///< all, by ID
    /// The number in recipes() of the recipe of that name or ID.
    [[nodiscard]] std::optional<std::size_t> recipe() const noexcept { return recipe_; }
    [[nodiscard]] const std::vector<Reference>& references() const noexcept { return references_; }
    /// Whether anything has this name.
    [[nodiscard]] bool isKnown() const noexcept { return known_; }

  private:
    [[nodiscard]] bool isName(const ado::StoredValue& value) const;
    void findColumns(Reader& reader);
    void findMembers(Reader& reader);
    void findInclusions();
    void findIndirect();
    [[nodiscard]] bool isListed(Reader& reader) const;

    std::string name_;
    std::vector<RecipeEntry> recipes_;
    std::vector<Inclusion> inclusions_;
    std::optional<std::size_t> recipe_;
    std::vector<Reference> references_;
    bool known_;
};

}  // namespace hx::project
