// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ado/recordset.h"
#include "forms/control.h"
#include "forms/grid_column.h"
#include "forms/input.h"
#include "forms/selected_rows.h"

namespace hx::forms {

/// What lies under a point of the grid.
enum class GridHit : std::int16_t {
    nowhere = 0,
    caption = 1,
    recordSelector = 2,
    columnHeader = 3,
    cell = 4,
    splitBar = 5
};

/// Which rows a user can select.
enum class MultiSelect : std::int16_t { none = 0, simple = 1, extended = 2 };

/// An error that the grid reports. A handler sets `response` to 0 when the grid shall show no message of its own.
struct GridError {
    std::int32_t code = 0;
    std::string description;
    std::int16_t response = 1;
};

/// Codes of GridError and of the Error that Grid::update throws.
inline constexpr std::int32_t gridErrStaleRow = 32;      ///< the row was deleted or is unreachable
inline constexpr std::int32_t gridErrBadValue = 13;      ///< the typed text does not fit the column
inline constexpr std::int32_t gridErrRowRefused = 6160;  ///< the database refused the row's values

/// A grid bound to a recordset. It is virtual: rows are read when they are shown. The current row of the grid and of
/// the recordset are the same; rows and columns count from 0 in recordset and column order (not display order).
///
/// Editing: typed text waits in the recordset's row buffer (dataChanged). Leaving the row raises leavingRowEvent;
/// without a handler the grid calls update() and reports an error by reportError. A row that cannot be left stays
/// current.
class Grid : public Control {
  public:
    explicit Grid(std::string name);
    ~Grid() override;

    // --- data
    void setDataSource(std::shared_ptr<ado::Recordset> recordset);  ///< and reload(); the columns stay as they are
    [[nodiscard]] const std::shared_ptr<ado::Recordset>& dataSource() const noexcept { return recordset_; }
    [[nodiscard]] const std::string& dataMember() const noexcept { return dataMember_; }
    void setDataMember(const std::string& member) { dataMember_ = member; }
    /// Shows the rows of the reopened recordset: drops selection, pending text and add-new mode; current row is the
    /// recordset's.
    void reload();
    void refetchRow();  ///< reads the current row again; its pending edit is dropped
    /// Reads the rows in view again; selection, current row and a pending edit stay.
    void refetch();
    [[nodiscard]] std::int32_t rowCount() const;  ///< 0 without an open recordset; a new row does not count
    /// As shown, pending text included; nothing for a row or column that the grid does not have (any more). In add-new
    /// mode row -1 is the new row. What the provider reports while it reads is thrown.
    [[nodiscard]] std::string text(std::int32_t row, std::int32_t column) const;
    [[nodiscard]] automation::Variant value(std::int32_t row, std::int32_t column) const;  ///< Null in place of nothing

    // --- columns
    [[nodiscard]] const std::vector<std::shared_ptr<Column>>& columns() const noexcept { return columns_; }
    [[nodiscard]] Column& column(const automation::Variant& fieldOrNumber) const;             ///< errBadIndex
    [[nodiscard]] Column* findColumn(std::string_view dataField) const;                       ///< ignores case
    [[nodiscard]] std::int32_t columnNumber(const automation::Variant& fieldOrNumber) const;  ///< errBadIndex
    Column& addColumn(const std::string& dataField);                                          ///< order = its number
    void clearColumns();
    [[nodiscard]] std::vector<Column*> columnsInDisplayOrder()
        const;                                             ///< by order, ties in list order; hidden ones too
    [[nodiscard]] Split& split(std::int32_t index) const;  ///< errBadIndex; there are two

    // --- current cell
    [[nodiscard]] std::int32_t row() const;  ///< -1 at BOF, EOF, on a new row, or without rows
    /// Leaves the current row (which may refuse) and moves; true when the row is current now. errBadIndex outside. A
    /// row that somebody has deleted is passed over.
    bool setRow(std::int32_t row);
    [[nodiscard]] std::int32_t col() const noexcept { return col_; }
    void setCol(std::int32_t column);              ///< errBadIndex
    [[nodiscard]] ado::Bookmark bookmark() const;  ///< of the current row; null when there is none
    [[nodiscard]] bool atBofOrEof() const;

    // --- selection
    [[nodiscard]] SelectedRows& selectedRows() noexcept { return *selectedRows_; }
    [[nodiscard]] MultiSelect multiSelect() const noexcept { return multiSelect_; }
    void setMultiSelect(MultiSelect mode);  ///< another number throws errOverflow

    // --- editing
    [[nodiscard]] bool allowUpdate() const noexcept { return allowUpdate_; }
    void setAllowUpdate(bool allow) { assign(allowUpdate_, allow, "AllowUpdate"); }
    [[nodiscard]] bool allowAddNew() const noexcept { return allowAddNew_; }
    void setAllowAddNew(bool allow) { assign(allowAddNew_, allow, "AllowAddNew"); }
    [[nodiscard]] bool addNewMode() const noexcept { return addNewMode_; }
    /// On: leaves the current row (which may refuse) for a new row that update() stores. Off: drops the new row.
    void setAddNewMode(bool on);
    /// Whether the user may type into the column: not where it is locked, shows translated values or cannot be written.
    [[nodiscard]] bool editable(std::int32_t column) const;
    /// How many characters a text in the column has at most; 0: any number.
    [[nodiscard]] std::size_t longestText(std::int32_t column) const;
    /// Puts text into a cell of the row, which becomes current, and marks the row as changed. Text that does not fit
    /// the column's type is reported as gridErrBadValue and changes nothing; empty text in a column of numbers is Null.
    /// A column that is not editable throws errMemberNotFound. In add-new mode row -1 is the new row.
    void setText(std::int32_t row, std::int32_t column, const std::string& text);
    [[nodiscard]] bool dataChanged() const noexcept { return dataChanged_; }
    void setDataChanged(bool dataChanged);  ///< the mark alone: a pending edit stays
    /// Writes the pending edit or the new row. Throws gridErrRowRefused when the database refused its values
    /// (dbErrDuplicate, dbErrCannotConvert, dbErrIntegrity) or another has changed the row (dbErrRowChanged),
    /// gridErrStaleRow when the row is gone, any other failure as the provider reports it. The edit then stays pending.
    void update();
    void cancelUpdate();  ///< drops the pending row; the stored values show again
    /// Raises errorEvent; when its response stays 1, shows "code: description" in a message box of the form's screen.
    void reportError(const automation::Error& error);
    /// Asks the view (settleEvent) for the text of an open cell editor, which goes into its cell; the editor closes.
    /// One whose text cannot be taken stays open.
    void settle() { settleEvent.raise(); }

    // --- keys that a view gives to the grid although a window around it has a shortcut of the same name
    void claimKeys(std::vector<KeyEvent> keys) { claimed_ = std::move(keys); }
    [[nodiscard]] bool claims(const KeyEvent& key) const;

    // --- sorting: the text is appended to ORDER BY
    [[nodiscard]] const std::string& sortText() const noexcept { return sortText_; }
    void setSortText(const std::string& text) { assign(sortText_, text, "SortText"); }
    /// The column that the sort text names, null when it is none of the grid's, and whether it is descending.
    [[nodiscard]] std::pair<Column*, bool> sortColumn() const;
    /// The user's click on a column's header: the sort text becomes its field, then field + " DESC", then empty; raises
    /// headClickEvent. A field whose name is not a plain word stands in [brackets]. A current row that cannot be left
    /// keeps the order as it is.
    void headClick(std::int32_t column);

    // --- what a view reports
    /// What the view could not read or hand over, told when the user can be asked. Raises viewErrorEvent, then as
    /// reportError.
    void viewFailed(const automation::Error& error);
    void buttonClick(std::int32_t row, std::int32_t column);  ///< makes the cell current, then raises buttonClickEvent
    /// The cell editor's text and caret while it is open, so that key handlers can ask; closed by editorClosed.
    void editorReported(const std::string& text, std::int32_t caret);
    void editorClosed();
    [[nodiscard]] bool editorOpen() const noexcept { return editorOpen_; }
    [[nodiscard]] const std::string& editorText() const noexcept { return editorText_; }
    /// Whether the caret stands behind the last character of the current cell's text (an unopened editor counts as
    /// behind).
    [[nodiscard]] bool caretAtEnd() const;
    void columnResized(std::int32_t column, double twips);         ///< by the user, where AllowSizing
    void columnMoved(std::int32_t column, std::int16_t newOrder);  ///< by the user; the others close up
    [[nodiscard]] GridHit hitTest(double x, double y) const;
    void setHitTester(std::function<GridHit(double, double)> tester) { hitTester_ = std::move(tester); }

    // --- events
    Event<> rowsChanged;             ///< row set or contents are new: read everything in view again
    Event<std::int32_t> rowChanged;  ///< contents of one row are new
    Event<> columnsChanged;          ///< columns were added, removed or reordered
    Event<> currentCellChanged;
    Event<> settleEvent;
    Event<bool&> leavingRowEvent;  ///< the current row has changed data; set true to stay
    Event<GridError&> errorEvent, viewErrorEvent;
    Event<std::int32_t> headClickEvent, buttonClickEvent;  ///< column number

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    [[nodiscard]] bool open() const noexcept;
    [[nodiscard]] bool pending() const;    // the current row is edited
    [[nodiscard]] bool holdsEdit() const;  // or a new row waits
    [[nodiscard]] bool isNewRow(std::int32_t row) const noexcept { return addNewMode_ && row == noRow; }
    [[nodiscard]] std::optional<std::size_t> fieldOf(std::int32_t column) const;
    void requireColumn(std::int32_t column) const;
    void columnChanged(std::string_view property);
    void leaveHiddenColumn();
    bool leaveRow();
    bool tryUpdate();
    [[nodiscard]] GridError inWords(const automation::Error& error) const;
    void showError(const GridError& error) const;
    void moveTo(std::int32_t row);
    void changeCell(std::int32_t column, const std::string& text);
    void dropEdit();
    void announceCell(std::int32_t oldRow);

    static constexpr std::int32_t noRow = -1;
    std::shared_ptr<ado::Recordset> recordset_;
    std::vector<Subscription> columnSubscriptions_;
    std::string dataMember_, sortText_, editorText_;
    std::vector<std::shared_ptr<Column>> columns_;
    std::vector<std::shared_ptr<Split>> splits_;
    std::shared_ptr<SelectedRows> selectedRows_;
    std::function<GridHit(double, double)> hitTester_;
    std::vector<KeyEvent> claimed_;
    std::int32_t col_ = 0, editorCaret_ = 0;
    MultiSelect multiSelect_ = MultiSelect::simple;
    bool allowUpdate_ = true, allowAddNew_ = false, addNewMode_ = false, dataChanged_ = false, editorOpen_ = false;
    bool reordering_ = false, leaving_ = false;
};

}  // namespace hx::forms
