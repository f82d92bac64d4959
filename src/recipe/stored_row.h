// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "dialogs/dialog.h"
#include "recipe/conflict.h"
#include "recipe/recipe_window.h"

/// What the transfers between a row and its dialog have in common.
namespace hx::recipe {

/// The edit of the current row by a dialog: the row as it was read for the dialog is what the database must still hold
/// when it is stored. It stays the same row when the recordset moves or is opened anew meanwhile; what has not been
/// stored is dropped in the end.
class RowInDialog {
  public:
    RowInDialog(const ado::Recordset& recordset, const resources::ResourceTable& texts, ColumnNames names)
        : recordset_(recordset), texts_(texts), names_(std::move(names)) {}

    /// Reads the row afresh. False after any error.
    [[nodiscard]] bool begin() noexcept;
    /// Where the row is read and edited, once it has begun.
    [[nodiscard]] ado::Recordset& fields() const noexcept { return *row_; }
    /// Stores what the dialog has changed. What the database says is thrown; when another has changed the row
    /// meanwhile, the error says what was entered, and what is stored now.
    void store();
    /// Drops it, and reads the row again.
    void restore() { row_->resync(ado::adAffectCurrent); }

  private:
    const ado::Recordset& recordset_;
    const resources::ResourceTable& texts_;
    ColumnNames names_;
    std::shared_ptr<ado::Recordset> row_;
};

/// Calls `use` with each field of the current row, in the order of the recordset. False after any error.
[[nodiscard]] bool forEachField(ado::Recordset& recordset, const std::function<void(ado::Field&)>& use) noexcept;

/// Tells the user what the database says.
using Refusal = std::function<void(const automation::Error&)>;

/// Shows the dialog until the user is done with it, in front of the window. With `refused`, OK stores: what another try
/// may mend, as a name that exists already or a disk that is full, is told by it, and the dialog stays open with all
/// that was entered. `store` is false when the dialog's values could not be taken over. True when they are stored;
/// after any other OK the dialog is closed and it is the caller who stores them.
[[nodiscard]] bool showStoring(RecipeWindow& window, dialogs::Dialog& dialog, const Refusal& refused,
                               const std::function<bool()>& store);

}  // namespace hx::recipe
