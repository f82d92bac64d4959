#include "automation/member_rows.h"
#include "forms/grid.h"

namespace hx::forms {

using automation::Args;
using automation::Error;
using automation::ObjectRef;
using automation::Variant;

namespace {

void requireRow(const Grid& grid, std::int32_t row) {
    const bool newRow = grid.addNewMode() && row == -1;
    if (!newRow && (row < 0 || row >= grid.rowCount())) automation::throwBadIndex(grid.name(), Variant(row));
}

std::string textAt(Grid& grid, std::int32_t row, const Variant& column) {
    requireRow(grid, row);
    return grid.text(row, grid.columnNumber(column));
}

Variant valueAt(Grid& grid, std::int32_t row, const Variant& column) {
    requireRow(grid, row);
    return grid.value(row, grid.columnNumber(column));
}

void putText(Grid& grid, std::int32_t row, const Variant& column, const std::string& text) {
    requireRow(grid, row);
    grid.setText(row, grid.columnNumber(column), text);
}

void putRow(Grid& grid, std::int32_t row) {
    if (!grid.setRow(row)) throw Error(automation::errFail, "The current row cannot be left, or the row is gone");
}

Variant selectRows(Grid& grid, Args args) {
    std::vector<ado::Bookmark> bookmarks;
    for (const Variant& arg : args) {
        const std::int32_t row = automation::toInt32(arg);
        if (row < 0 || row >= grid.rowCount()) automation::throwBadIndex(grid.name(), arg);
        bookmarks.push_back(grid.dataSource()->bookmarkAt(static_cast<std::size_t>(row)));
    }
    grid.selectedRows().set(std::move(bookmarks));
    return {};
}

ObjectRef columnOf(Grid& grid, const Variant& fieldOrNumber) { return grid.column(fieldOrNumber).share(); }
ObjectRef splitOf(Grid& grid, std::int32_t index) { return grid.split(index).share(); }
ObjectRef selectedRowsOf(Grid& grid) { return grid.selectedRows().share(); }
ObjectRef dataSourceOf(Grid& grid) { return grid.dataSource(); }
Variant bookmarkOf(Grid& grid) { return grid.bookmark().toVariant(); }
std::int32_t selectedCountOf(Grid& grid) { return grid.selectedRows().count(); }
std::int32_t columnCountOf(Grid& grid) { return static_cast<std::int32_t>(grid.columns().size()); }
bool isEditable(Grid& grid, const Variant& column) { return grid.editable(grid.columnNumber(column)); }
void clickHead(Grid& grid, const Variant& column) { grid.headClick(grid.columnNumber(column)); }
void clickButton(Grid& grid, std::int32_t row, const Variant& column) {
    requireRow(grid, row);
    grid.buttonClick(row, grid.columnNumber(column));
}

}  // namespace

const automation::MemberTable& Grid::members() const {
    using automation::indexed;
    using automation::method;
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&Grid::rowCount>("RowCount", "The number of rows"),
        indexed<&textAt>("Text", "A cell as shown, by row from 0 and column"),
        indexed<&valueAt>("Value", "The value of a cell, by row from 0 and column"),
        method<&putText>("SetText", "Types text into a cell: row, column, text"),
        property<&Grid::row, &putRow>("Row", "The current row from 0; -1 for none"),
        property<&Grid::col, &Grid::setCol>("Col", "The current column from 0"),
        property<&bookmarkOf>("Bookmark", "Marks the current row; Null without one"),
        indexed<&columnOf>("Columns", "A column by its field, or by number from 0"),
        property<&columnCountOf>("ColumnCount", "The number of columns"),
        indexed<&splitOf>("Splits", "A part of the grid: 0 left, 1 right"),
        property<&selectedRowsOf>("SelectedRows", "The bookmarks of the selected rows"),
        property<&selectedCountOf>("SelectedCount", "The number of selected rows"),
        automation::methodWithArgs<Grid, &selectRows>("SelectRows", "Selects these rows, by number, and no others"),
        property<&Grid::multiSelect, &Grid::setMultiSelect>("MultiSelect",
                                                            "Rows to select: 0 none, 1 simple, 2 extended"),
        property<&Grid::allowUpdate, &Grid::setAllowUpdate>("AllowUpdate", "Whether the user can edit"),
        property<&Grid::allowAddNew, &Grid::setAllowAddNew>("AllowAddNew", "Whether the user can add rows"),
        property<&Grid::addNewMode, &Grid::setAddNewMode>("AddNewMode", "Whether the current row is a new one"),
        property<&Grid::dataChanged, &Grid::setDataChanged>("DataChanged", "Whether the current row has been edited"),
        indexed<&isEditable>("Editable", "Whether the user may type into a column"),
        method<&Grid::update>("Update", "Writes the current row"),
        method<&Grid::cancelUpdate>("CancelUpdate", "Drops the edit of the current row"),
        method<&Grid::refetch>("Refetch", "Reads the rows in view again"),
        method<&Grid::refetchRow>("RefetchRow", "Reads the current row again"),
        property<&Grid::sortText, &Grid::setSortText>("SortText",
                                                      "The order of the rows: field, field DESC, or nothing"),
        method<&clickHead>("HeadClick", "Clicks the header of a column"),
        method<&clickButton>("ButtonClick", "Clicks the button of a cell: row, column"),
        method<&Grid::hitTest>("HitTest", "What lies at x, y: 0 nothing, 3 header, 4 cell"),
        property<&Grid::dataMember, &Grid::setDataMember>("DataMember", "The name of its recordset without \"rs\""),
        property<&dataSourceOf>("DataSource", "The recordset that it shows"),
    };
    static const automation::MemberTable table{"Grid", rows, &controlMembers()};
    return table;
}

}  // namespace hx::forms
