// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "ado/recordset.h"
#include "automation/text_list.h"
#include "resources/resource_table.h"

/// What the commands do to the rows of recipes and members. The database's errors reach the caller.
namespace hx::editor {

/// Stores a recipe under the first free name, "Neues Rezept", "Neues Rezept(2)", ...; it is then the current row. The
/// refused names stay in the connection's errors. Gives the name.
std::string addRecipe(ado::Recordset& recipes);

/// Opens the recipes where needed and stands on the one that meets the criterion. False when there is none.
[[nodiscard]] bool findRecipe(ado::Recordset& recipes, const std::string& criterion);

/// Deletes the current recipe and its members. Members of others that include it stay. All in one transaction; when
/// the database fails, what was deleted before stays deleted. `deleted` becomes true when the recipe is gone for good.
void deleteRecipeWithMembers(ado::Recordset& recipes, std::int32_t id, bool& deleted);

/// Deletes rows of the members. All in one transaction; when the database fails, what was deleted before stays deleted.
/// A row that is gone already is passed over.
void deleteMembers(ado::Recordset& members, std::span<const ado::Key> rows);

/// A variable or sub-recipe of a recipe.
struct Member {
    std::int32_t id = 0, child = 0;
    std::string_view variable;
    friend auto operator<=>(const Member&, const Member&) = default;
};
/// Members of a recipe, fit for a million.
class Members {
  public:
    /// Adds the members in the rows, of which the current one stays.
    void add(const ado::Recordset& rows);
    [[nodiscard]] std::size_t size() const noexcept { return numbers_.size(); }
    [[nodiscard]] const automation::TextList& variables() const noexcept { return variables_; }
    /// All of them in the order of their IDs; the texts are lent.
    [[nodiscard]] std::vector<Member> sorted() const;

  private:
    std::vector<std::pair<std::int32_t, std::int32_t>> numbers_;  // of the member and of its child
    automation::TextList variables_;
};
[[nodiscard]] Members membersOf(std::int32_t recipe, const std::shared_ptr<ado::Connection>& connection);
void addSubRecipes(Members& to, std::int32_t recipe, const std::shared_ptr<ado::Connection>& connection);

/// Deletes every member of the recipe, its sub-recipes too, and stores the variables in their order: all or nothing.
/// Only when its members still are the known ones; else nothing is changed, and it gives what they are now.
/// dbErrDeletedRow, in words for the user, when the recipe is gone.
[[nodiscard]] std::optional<Members> replaceMembers(std::int32_t recipe, const Members& known,
                                                    const std::vector<std::string>& variables,
                                                    const std::shared_ptr<ado::Connection>& connection,
                                                    const resources::ResourceTable& texts);

}  // namespace hx::editor
