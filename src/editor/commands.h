// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "automation/dispatch.h"
#include "editor/add_in.h"
#include "editor/recipe_rows.h"
#include "recipe/stored_row.h"

namespace hx::recipe {
class RecipeNodes;
}

namespace hx::editor {

class frmtabgrid;

/// What the tools of the bar run. Each procedure takes the fixed number of a command; a number without a command does
/// nothing. A command that acts on a recipe does nothing either while the window shows a node of another kind. Errors
/// are shown under the procedure's name. A command may end the window. While a recipe or a sub-recipe is edited in its
/// dialog, the window follows the explorer, but each further command beeps: it would take the row from under the
/// dialog.
class Commands {
  public:
    Commands(frmtabgrid& window, AddIn& addIn) : window_(window), addIn_(addIn) {}
    virtual ~Commands() = default;
    Commands(const Commands&) = delete;
    Commands& operator=(const Commands&) = delete;

    /// The command of a tool by its name; none for an unknown one.
    void runTool(std::string_view name);
    /// 0 new, 1 edit, 2 delete recipe.
    virtual void mnuRecipeFunc(std::int16_t index);
    /// 0 add or delete variables, 1 new sub-recipe, 2 delete the selected members, 3 edit sub-recipe.
    virtual void mnuRecipeMember(std::int16_t index);
    /// 0 statistic, 2 refresh, 5 recipe-server configuration, 6 options, 7 report.
    virtual void mnuOption(std::int16_t index);
    /// Any number: shows the editor's window in front.
    virtual void mnuShowEditor(std::int16_t index);

  private:
    /// Kinds of nodes that a command can act on.
    enum Nodes : unsigned { recipeNode = 1, subRecipesNode = 2, membersNode = 3, anyNode = 7 };
    struct Row {
        std::int16_t index;
        Nodes nodes;
        void (Commands::*command)();
    };
    void run(std::span<const Row> rows, std::int16_t index, std::string_view procedure);
    [[nodiscard]] bool showsOneOf(Nodes nodes) const;

    // --- recipes
    void newRecipe();
    void editRecipe();
    void deleteRecipe();
    /// Runs the action. When it fails because another has changed or deleted the recipe, which had the name `before`
    /// (empty when that does not matter), explorer and grid show it as it now is before the error goes on.
    void showingConflicts(std::int32_t id, const std::string& before, const std::function<void()>& action);
    void showChangedRecipe(std::int32_t id, const std::string& before);
    void recipeRenamed(std::int32_t id, const std::string& name);
    void recipeDeleted(std::int32_t id);
    [[nodiscard]] recipe::RecipeNodes nodes(host::ProjectExplorer& explorer) const;

    /// Shows what the database refuses while a dialog is open under this title, and sets `told`.
    [[nodiscard]] recipe::Refusal tellingIn(std::string_view title, bool& told) const;

    // --- members
    void chooseVariables();
    void replaceVariables(std::int32_t recipe, Members known, const std::vector<std::string>& variables,
                          const std::shared_ptr<ado::Connection>& connection);
    void newSubRecipe();
    void deleteMembers();
    void editSubRecipe();
    [[nodiscard]] ado::Bookmark rowLeftByDeletion() const;

    /// The user's answer to the question, which is not asked when the option "RequestOnDelete" is off.
    [[nodiscard]] bool mayDelete(std::int32_t question);
    /// Yes or no, which is the default.
    [[nodiscard]] bool saysYes(const std::string& question);

    // --- options
    void statistic();
    void refresh();
    void configureRecipeServer();
    void editorOptions();
    void report();
    [[nodiscard]] automation::ObjectRef sibling(std::string_view programId);

    frmtabgrid& window_;
    AddIn& addIn_;
    automation::ObjectRef report_;  // while it is shown
    bool dialogOpen_ = false;
};

}  // namespace hx::editor
