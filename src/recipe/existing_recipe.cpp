// SPDX-License-Identifier: MIT
#include "recipe/existing_recipe.h"

#include "ado/recordset.h"
#include "project/schema.h"

namespace hx::recipe {

namespace schema = project::schema;

namespace {

constexpr automation::Sentence recipeDeleted{
    "The recipe with the ID %1 was deleted by another. Nothing was stored.",
    "Das Rezept mit der ID %1 wurde von jemand anderem gelöscht. Nichts wurde gespeichert."};

}  // namespace

void requireRecipe(const std::shared_ptr<ado::Connection>& connection, std::int32_t id,
                   const resources::ResourceTable& texts) {
    const std::string number = std::to_string(id);
    ado::Recordset found;
    found.open("SELECT * FROM " + std::string(schema::recipeTable) + " WHERE ID = " + number, connection);
    if (found.eof()) throw automation::Error(ado::dbErrDeletedRow, say(texts.wording(), recipeDeleted, {number}));
}

}  // namespace hx::recipe
