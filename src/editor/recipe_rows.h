#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ado/recordset.h"
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

/// Deletes those of the node's members, one at least. All in one transaction; when the database fails, what was deleted
/// before stays deleted. A member that is gone already is passed over.
void deleteMembersOf(const std::string& nodeKey, std::vector<std::int32_t> members,
                     const std::shared_ptr<ado::Connection>& connection);

/// A variable or sub-recipe of a recipe.
struct Member {
    std::int32_t id = 0, child = 0;
    std::string variable;
    friend auto operator<=>(const Member&, const Member&) = default;
};
/// In the order of their IDs.
using Members = std::vector<Member>;
[[nodiscard]] Members membersOf(std::int32_t recipe, const std::shared_ptr<ado::Connection>& connection);

/// Deletes every member of the recipe, its sub-recipes too, and stores the variables in their order: all or nothing.
/// Only when its members still are the known ones; else nothing is changed, and it gives what they are now.
/// dbErrDeletedRow, in words for the user, when the recipe is gone.
[[nodiscard]] std::optional<Members> replaceMembers(std::int32_t recipe, const Members& known,
                                                    const std::vector<std::string>& variables,
                                                    const std::shared_ptr<ado::Connection>& connection,
                                                    const resources::ResourceTable& texts);

}  // namespace hx::editor
