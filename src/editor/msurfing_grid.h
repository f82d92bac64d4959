// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "editor/add_in.h"
#include "forms/grid.h"

namespace hx::editor {

class frmtabgrid;

/// The grid of a recipe's members, the module MSurfingGrid: its columns and layout, and what happens when a cell or row
/// is edited.
class MSurfingGrid {
  public:
    MSurfingGrid(frmtabgrid& window, AddIn& addIn);

    // --- columns
    /// One column a field of the recordset, which becomes the grid's; opens it when it is closed. Then the stored
    /// layout.
    void build(const std::shared_ptr<ado::Recordset>& members);
    /// The stored properties of the grid, then the stored order of its columns.
    void applyLayout();
    /// Whether the grid has its stored layout: until it has been built to the end, what it shows is not the user's.
    [[nodiscard]] bool arranged() const noexcept { return arranged_; }
    void applyColumnOrder();
    /// Into the settings.
    void saveColumnOrder();
    void refreshSubRecipeNames();

    // --- editing
    /// Writes a pending edit or new row; one that the database refuses is dropped without a word.
    void verifyAdds() { (void)writeOrDrop(); }
    /// The same before the rows go away; the user is told what was dropped, and why.
    void finishOrDrop();
    /// Writes a pending edit or new row. False when that failed: the user has been told, and the edit is still pending
    /// unless it was refused as a duplicate or its row is gone.
    bool finishRow();
    /// The cell button: lets the user choose the variable of the current row.
    void chooseVariable();
    /// Shows the members of the window's node. When these are shown already, the current row and the selected rows
    /// stay. A pending edit is written first; when that fails, nothing else happens, and neither while the window shows
    /// no node.
    void refreshMembers();
    /// Shows no rows, until members are read again.
    void clear();
    /// The same, but the current row is this one, when it is still there, and none is selected.
    void refreshMembersAt(const ado::Bookmark& row);
    /// While the rows and what was selected among them come from the database, not from the user.
    [[nodiscard]] bool reading() const noexcept { return reading_; }
    /// finishRow where there is anything to write.
    [[nodiscard]] bool finishEdit() { return !holdsEdit() || finishRow(); }

  private:
    std::optional<automation::Error> writeOrDrop();
    [[nodiscard]] automation::Error lossOf(const std::string& entry, const automation::Error& reason) const;
    [[nodiscard]] std::string entry() const noexcept;
    [[nodiscard]] bool mayRead();
    void readMembers(const ado::Bookmark& current, const std::vector<ado::Bookmark>& selected);
    void addColumn(const std::string& field);
    void standOn(const ado::Bookmark& row);
    void select(std::vector<ado::Bookmark> rows);
    void sorted();
    void leavingRow(bool& stay);
    void buttonClicked(std::int32_t column);
    void reportedError(forms::GridError& error);
    void viewFailed(forms::GridError& error);
    void resetStaleRows(std::int32_t code);
    void refuseDuplicate();
    void showRefusals(std::int32_t code);
    void showRefusal(const automation::Error& error);
    [[nodiscard]] std::optional<automation::Error> conflict() const;
    void showConflict(const automation::Error& conflict);
    void dropEdit() noexcept;
    void clearErrors();
    [[nodiscard]] std::shared_ptr<ado::Recordset> members() const;
    [[nodiscard]] bool holdsEdit() const { return grid_.dataChanged() || grid_.addNewMode(); }

    frmtabgrid& window_;
    AddIn& addIn_;
    forms::Grid& grid_;
    std::string shownKey_;         // the node whose members the grid shows
    bool gridShowsError_ = false;  // in its own message box
    bool reading_ = false, arranged_ = false;
    std::vector<forms::Subscription> subscriptions_;
};

}  // namespace hx::editor
