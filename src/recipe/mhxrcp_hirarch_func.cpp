// SPDX-License-Identifier: MIT
#include "recipe/mhxrcp_hirarch_func.h"

#include <algorithm>

#include "automation/text.h"
#include "project/schema.h"
#include "recipe/node_key.h"
#include "resources/text_ids.h"

namespace hx::recipe {

namespace schema = project::schema;
namespace text = resources::text_id;

namespace {

std::string orderClause(const std::string& sortText) {
    return " ORDER BY " + (sortText.empty() ? std::string(schema::member::id) : sortText);
}

// A grid that has not been bound yet has no columns to set.
void setColumns(forms::Grid& grid, const resources::ResourceTable& texts, bool subRecipes) {
    if (forms::Column* child = grid.findColumn(schema::member::childId)) child->setVisible(subRecipes);
    if (forms::Column* variable = grid.findColumn(schema::member::varRecipe)) {
        variable->setCaption(texts.GetResource(subRecipes ? text::fileName : text::variable));
    }
}

// A column that shows other values than are stored is sorted by what it shows.
void sortAsShown(ado::Recordset& members, const forms::Grid& grid) {
    const auto [column, descending] = grid.sortColumn();
    if (column == nullptr || !column->valueItems().translates()) return;
    const auto& fields = members.columns();
    const auto isShown = [name = column->dataField()](const ado::Column& field) {
        return automation::equalIgnoreCase(field.name, name);
    };
    const auto field = std::ranges::find_if(fields, isShown);
    if (field == fields.end()) return;
    const auto shown = [column = std::static_pointer_cast<forms::Column>(column->share())](
                           const automation::Variant& value) { return column->valueItems().display(value); };
    members.sortBy(static_cast<std::size_t>(field - fields.begin()), shown, descending);
}

// Rows that would be the same are not read again.
void open(ado::Recordset& members, const forms::Grid& grid, const std::string& source, bool saveFirst) {
    FinishEdit(members, saveFirst);
    const bool shown = members.state() == ado::adStateOpen && members.source() == source && members.filter().empty();
    if (shown && members.isUpToDate()) return members.requery();
    CloseRecordset(members, saveFirst);
    members.setSource(source);
    members.setCommandType(ado::adCmdText);
    members.open();
    sortAsShown(members, grid);
}

}  // namespace

std::string memberQuery(std::string_view nodeKey) {
    const std::string_view prefix = KeyPrefix(nodeKey);
    const auto membersOf = [](std::int32_t recipe) {
        return "SELECT * FROM " + std::string(schema::memberTable) + " WHERE ParentID = " + std::to_string(recipe);
    };
    if (prefix == prefixRecipe) return membersOf(KeyId(nodeKey)) + " And ChildID = 0";
    if (prefix == prefixSubRecipes) return membersOf(KeyId(nodeKey)) + " And ChildID <> 0";
    if (prefix == prefixRoot) return membersOf(schema::noRecipe);
    return {};
}

bool RefreshMemberView(forms::Grid& grid, ado::Recordset& members, std::string_view nodeKey, bool saveFirst,
                       const resources::ResourceTable& texts) {
    const std::string source = memberQuery(nodeKey) + orderClause(grid.sortText());
    try {
        open(members, grid, source, saveFirst);
    } catch (...) {
        grid.reload();  // the rows that it showed are gone
        throw;
    }
    grid.reload();
    const bool subRecipes = KeyPrefix(nodeKey) == prefixSubRecipes;
    setColumns(grid, texts, subRecipes);
    return subRecipes;
}

}  // namespace hx::recipe
