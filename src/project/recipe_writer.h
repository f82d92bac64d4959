// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "ado/provider.h"

namespace hx::project {

/// A recipe that is to be made.
struct NewRecipe {
    std::string name;
    std::vector<std::string> variables;
    friend bool operator==(const NewRecipe&, const NewRecipe&) = default;
};

/// Whether the copy of a recipe includes the same sub-recipes, or copies of them, and these of theirs.
enum class SubRecipes : std::uint8_t { shared, copied };

/// Changes many recipes at once: each function in one transaction, which is taken back when it throws.
class RecipeWriter {
  public:
    /// The session is lent.
    explicit RecipeWriter(ado::Session& session);

    /// Copies recipes with all that their rows hold, known or not. A copy gets the name of its original with the first
    /// number in parentheses that is free, as new recipes do: "Cola(2)". Gives the IDs of the copies, in the order of
    /// the originals; those of sub-recipes follow. A recipe that is gone is left out.
    std::vector<std::int64_t> copy(std::span<const std::int64_t> recipes, SubRecipes subRecipes);
    /// Deletes recipes with their members. Members of other recipes that name them stay.
    void remove(std::span<const std::int64_t> recipes);
    /// Makes recipes with these names and variables; a name that is there already is an error that names it. Gives
    /// their IDs.
    std::vector<std::int64_t> create(std::span<const NewRecipe> recipes);
    /// Adds variables to a recipe, behind its others.
    void addVariables(std::int64_t recipe, std::span<const std::string> variables);

  private:
    struct Table {
        std::unique_ptr<ado::Rowset> rows;
        std::size_t id = 0;  ///< number of the key's column
        [[nodiscard]] std::size_t column(std::string_view name) const;
        [[nodiscard]] std::vector<ado::Key> keysWhere(std::string_view name, std::int64_t value) const;
    };
    [[nodiscard]] static Table open(ado::Session& session, std::string_view name);
    [[nodiscard]] std::vector<std::int64_t> withSubRecipes(std::span<const std::int64_t> recipes) const;
    [[nodiscard]] std::int64_t copyRow(std::int64_t recipe);
    void copyMembers(std::int64_t from, std::int64_t to, const std::vector<std::pair<std::int64_t, std::int64_t>>& ids);
    [[nodiscard]] std::int64_t addNamed(const std::string& name);
    void addMembers(std::int64_t recipe, std::span<const std::string> variables);

    ado::Session& session_;
    Table recipes_, members_;
};

}  // namespace hx::project
