// SPDX-License-Identifier: MIT
#include "editor/recipe_names.h"

#include "ado/recordset.h"
#include "automation/convert.h"
#include "project/schema.h"

namespace hx::editor {

namespace schema = project::schema;

std::optional<std::string> nameOfRecipe(const std::shared_ptr<ado::Connection>& connection, std::int32_t id) {
    if (connection->state() != ado::adStateOpen) return {};
    ado::Recordset found;
    found.open("SELECT * FROM " + std::string(schema::recipeTable) + " WHERE ID = " + std::to_string(id), connection);
    if (found.eof()) return {};
    return automation::toText(found.field(schema::recipe::name).value());
}

}  // namespace hx::editor
