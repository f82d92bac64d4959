#pragma once

#include <functional>

#include "dialogs/dialog.h"
#include "recipe/recipe_window.h"

/// What the transfers between a row and its dialog have in common.
namespace hx::recipe {

/// Reads the current row again: another may have changed it since. False after any error.
[[nodiscard]] bool readAgain(ado::Recordset& recordset) noexcept;

/// Calls `use` with each field of the current row, in the order of the recordset. False after any error.
[[nodiscard]] bool forEachField(ado::Recordset& recordset, const std::function<void(ado::Field&)>& use) noexcept;

/// Shows the dialog until the user is done with it, in front of the window. `accept` is asked by OK meanwhile.
void showOver(RecipeWindow& window, dialogs::Dialog& dialog, std::function<bool()> accept = {});

/// Ends the edit of the current row. Written well, it is stored; what the database then says is thrown, and nothing
/// stays pending. Else the user is told, and the stored values are read again.
void storeOrRestore(ado::Recordset& recordset, bool written, const std::function<void()>& tell);

}  // namespace hx::recipe
