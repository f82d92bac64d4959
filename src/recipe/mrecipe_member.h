// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/fsub_recipe.h"
#include "recipe/stored_row.h"

/// Sub-recipes as members of a recipe: the module MRecipeMember. Any recipe can be included in any other and in itself,
/// also in a circle: who follows them must guard against that.
namespace hx::recipe {

/// Lets the user choose a recipe that the window's recipe includes from now on. False when the dialog was cancelled:
/// nothing is stored. Else the member is stored and the member recordset closed. What the database says is thrown; the
/// recordset may then stand on another row, also when it was told by `refused`, which makes OK store (showStoring).
bool AddSubRecipeMember(RecipeWindow& window, const Refusal& refused = {});

/// Lets the user edit the current row, the member of a sub-recipe. False when the dialog was cancelled or could not be
/// filled: the row is as it was. Else true, also when the values could not be written back, which a message says. What
/// the database says when it stores the row is thrown; the row then keeps its stored values. With `refused` the row is
/// stored by OK (showStoring).
bool EditSubRecipeMember(ado::Recordset& members, RecipeWindow& window, const Refusal& refused = {});

/// All recipes, and the current row's values. False after any error.
[[nodiscard]] bool ReadMemberToDialog(ado::Recordset& members, dialogs::FSubRecipe& dialog, RecipeWindow& window);
/// Into the current row, which still has to be updated; the recipe that it belongs to stays. False after any error.
[[nodiscard]] bool WriteDialogToMember(ado::Recordset& members, const dialogs::FSubRecipe& dialog);

/// Fills the list with every recipe, the first one chosen, and tells the dialog whether the window's recipe saves its
/// sub-recipes' values. Database errors are thrown.
void FillSubRecipeList(RecipeWindow& window, dialogs::FSubRecipe& dialog);

}  // namespace hx::recipe
