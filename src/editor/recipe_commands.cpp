// SPDX-License-Identifier: MIT
#include <array>

#include "ado/transaction.h"
#include "automation/convert.h"
#include "automation/restore.h"
#include "editor/commands.h"
#include "editor/database_work.h"
#include "editor/frmtabgrid.h"
#include "editor/guard.h"
#include "editor/recipe_names.h"
#include "editor/recipe_rows.h"
#include "forms/wait_cursor.h"
#include "project/schema.h"
#include "recipe/conflict.h"
#include "recipe/mrecipe.h"
#include "recipe/node_key.h"
#include "recipe/recipe_nodes.h"
#include "resources/text_ids.h"

namespace hx::editor {

namespace schema = project::schema;
namespace text = resources::text_id;

namespace {

constexpr std::string_view procedure = "mnuRecipeFunc";

std::string nameIn(ado::Recordset& recipes) { return automation::toText(recipes.field(schema::recipe::name).value()); }

}  // namespace

void Commands::mnuRecipeFunc(std::int16_t index) {
    static constexpr auto rows = std::to_array<Row>({
        {0, anyNode, &Commands::newRecipe},
        {1, recipeNode, &Commands::editRecipe},
        {2, recipeNode, &Commands::deleteRecipe},
    });
    run(rows, index, procedure);
}

recipe::RecipeNodes Commands::nodes(host::ProjectExplorer& explorer) const {
    return {explorer, addIn_.texts().GetResource(text::subRecipes)};
}

// In one transaction: a recipe that cannot be finished is not there at all.
void Commands::newRecipe() {
    const forms::WaitCursor wait(window_.screen());
    const DatabaseWork work(window_.dataEnvironment());
    ado::Transaction transaction(*work.connection());
    const std::string name = addRecipe(work.recipes());
    const std::int32_t id = automation::toInt32(work.recipes().field(schema::recipe::id).value());
    recipe::RenameRecipe(work.recipes(), name, name);
    transaction.commit();
    // The recipe is there: an explorer that refuses it keeps nothing else from showing it.
    guard(addIn_, procedure, [&] {
        if (host::ProjectExplorer* explorer = addIn_.explorer()) nodes(*explorer).add(id, name);
    });
    window_.refreshSubRecipeNames();
    window_.refreshMembers();
}

void Commands::editRecipe() {
    const DatabaseWork work(window_.dataEnvironment());
    const std::int32_t id = recipe::KeyId(window_.nodeKey());
    if (!findRecipe(work.recipes(), "ID=" + std::to_string(id))) return;
    const std::string before = nameIn(work.recipes());
    showingConflicts(id, before, [&] {
        const automation::Restore dialog(dialogOpen_, true);
        bool refused = false;
        recipe::EditRecipe(work.recipes(), window_, tellingIn(procedure, refused));
    });
    const std::string after = nameIn(work.recipes());
    if (after != before) recipeRenamed(id, after);
}

recipe::Refusal Commands::tellingIn(std::string_view title, bool& told) const {
    return [this, title, &told](const automation::Error& error) {
        told = true;
        const Busy busy(addIn_.busy());
        showError(window_.screen(), error, title);
    };
}

void Commands::showingConflicts(std::int32_t id, const std::string& before, const std::function<void()>& action) {
    try {
        action();
    } catch (const automation::Error& error) {
        if (recipe::isConflict(error)) guard(addIn_, procedure, [&] { showChangedRecipe(id, before); });
        throw;
    }
}

void Commands::showChangedRecipe(std::int32_t id, const std::string& before) {
    if (window_.dataEnvironment() == nullptr) return;
    const auto name = nameOfRecipe(window_.dataEnvironment()->CnnRecipes, id);
    if (!name) recipeDeleted(id);
    else if (!before.empty() && *name != before) recipeRenamed(id, *name);
}

void Commands::recipeRenamed(std::int32_t id, const std::string& name) {
    const std::string key = recipe::makeKey(recipe::prefixRecipe, id);
    if (host::ProjectExplorer* explorer = addIn_.explorer()) nodes(*explorer).rename(key, name);
    window_.refreshSubRecipeNames();
    if (recipe::KeyId(window_.nodeKey()) == id) window_.MakeMyCaption(window_.nodeKey(), name);
}

void Commands::deleteRecipe() {
    const DatabaseWork work(window_.dataEnvironment());
    if (window_.memberRecordset().editMode() == ado::adEditInProgress) window_.tdbRM->cancelUpdate();
    const std::int32_t id = recipe::KeyId(window_.nodeKey());
    if (!findRecipe(work.recipes(), "ID= " + std::to_string(id)) || !mayDelete(text::deleteRecipe)) return;
    bool deleted = false;
    guard(addIn_, procedure, [&] {
        const forms::WaitCursor wait(window_.screen());
        deleteRecipeWithMembers(work.recipes(), id, deleted);
    });
    // Also when its members could not be deleted: the recipe is gone, and the user was told what failed.
    if (deleted) recipeDeleted(id);
}

void Commands::recipeDeleted(std::int32_t id) {
    host::ProjectExplorer* explorer = addIn_.explorer();
    const auto step = [this](auto action) { guard(addIn_, procedure, action); };
    if (explorer != nullptr) step([&] { nodes(*explorer).remove(recipe::makeKey(recipe::prefixRecipe, id)); });
    window_.refreshSubRecipeNames();
    // The node that the explorer has chosen instead is shown, or the root where it has chosen none of ours.
    std::string key = explorer != nullptr ? explorer->selectedNode().key : std::string();
    if (recipe::KeyHelpContext(key) == 0) key = recipe::rootKey;
    window_.tdbRM->setAddNewMode(false);  // a new row; it would belong to the deleted recipe
    window_.showNode(key);
}

}  // namespace hx::editor
