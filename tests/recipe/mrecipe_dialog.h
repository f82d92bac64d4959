// SPDX-License-Identifier: MIT
#pragma once

#include "dialog_window.h"
#include "recipe/mhxrcp_hirarch_func.h"
#include "recipe/mrecipe.h"

namespace hx::recipe {

/// The columns of the recipe table, by number.
enum Column : std::size_t {
    ID,
    Name,
    VarRecipeName,
    VarDescription,
    FilePath,
    FileExtension,
    Enabled,
    Comment,
    VarLoad,
    VarSave,
    VarRead,
    VarWrite,
    StandardValue,
    VarSetValue,
    SaveSubRecipes,
    SaveChanges,
    CryptEngine,
    Options
};

/// Edits the second of three recipes.
struct MRecipe : DialogTest {
    explicit MRecipe(const headless::HostOptions& options = {}) : DialogTest(options) {
        plant.addRecipe("Cola");
        id = plant.addRecipe("Tee");
        plant.addRecipe("Wasser");
    }

    void store(Column column, const automation::Variant& value) {
        const std::vector<ado::ColumnValue> values = {{column, value}};
        plant.database.table("TrcpRecipe").update(id, values);
    }
    [[nodiscard]] automation::Variant stored(Column column) { return DialogTest::stored("TrcpRecipe", id, column); }
    [[nodiscard]] std::vector<automation::Variant> storedRow() { return *plant.database.table("TrcpRecipe").row(id); }

    /// Positions the recipes and edits; the script works on the dialog.
    bool edit() {
        OpenAndMoveFirst(recipes);
        recipes.find("ID=" + std::to_string(id));
        return EditRecipe(recipes, *window);
    }
    /// The user changes something and presses OK.
    bool editAndConfirm(const std::function<void(dialogs::FRecipe&)>& change = [](dialogs::FRecipe&) {}) {
        inDialog<dialogs::FRecipe>("FRecipe", [change](dialogs::FRecipe& dialog) {
            change(dialog);
            dialog.cmdOk->click();
        });
        return edit();
    }
    /// Looks at the filled dialog, which is then cancelled.
    void lookAt(const std::function<void(dialogs::FRecipe&)>& look) {
        inDialog<dialogs::FRecipe>("FRecipe", [look](dialogs::FRecipe& dialog) {
            look(dialog);
            dialog.cmdCancel->click();
        });
        EXPECT_FALSE(edit());
        EXPECT_EQ(host.record.modals.size(), 1U);
    }

    ado::Recordset& recipes = *plant.data.rsRecipes;
    std::int32_t id = 0;
};

/// A column and the text box that shows it.
struct TextRow {
    Column column;
    std::shared_ptr<forms::TextBox> dialogs::FRecipe::*box;
};
inline constexpr TextRow textRows[] = {
    {Name, &dialogs::FRecipe::txtName},
    {VarRecipeName, &dialogs::FRecipe::txtRecipeName},
    {VarDescription, &dialogs::FRecipe::txtDescription},
    {FileExtension, &dialogs::FRecipe::txtFileExtension},
    {Comment, &dialogs::FRecipe::txtComment},
    {VarLoad, &dialogs::FRecipe::txtVarLoad},
    {VarSave, &dialogs::FRecipe::txtVarSave},
    {VarRead, &dialogs::FRecipe::txtVarRead},
    {VarWrite, &dialogs::FRecipe::txtVarWrite},
    {VarSetValue, &dialogs::FRecipe::txtVarSetValue},
};

}  // namespace hx::recipe
