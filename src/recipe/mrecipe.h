// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/frecipe.h"
#include "recipe/stored_row.h"

/// The way of a recipe's properties between its row and the dialog: the module MRecipe.
namespace hx::recipe {

/// Lets the user edit the current row. False when the dialog was cancelled or could not be filled: the row is as it
/// was. Else true, also when the values could not be written back, which a message says. What the database says when it
/// stores the row is thrown; the row then keeps its stored values. With `refused` the row is stored by OK
/// (showStoring).
bool EditRecipe(ado::Recordset& recipes, RecipeWindow& window, const Refusal& refused = {});

/// From every column of the current row that has a control. False after any error.
[[nodiscard]] bool ReadRecipeToDialog(ado::Recordset& recipes, dialogs::FRecipe& dialog,
                                      const automation::NumberFormat& format = {});
/// Into every column of the current row that has a control; the row still has to be updated. False after any error.
[[nodiscard]] bool WriteDialogToRecipe(ado::Recordset& recipes, const dialogs::FRecipe& dialog);

}  // namespace hx::recipe
