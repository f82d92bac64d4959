// SPDX-License-Identifier: MIT
#include "forms/grid.h"

#include <algorithm>
#include <array>

#include "automation/convert.h"
#include "automation/member_rows.h"
#include "automation/restore.h"
#include "automation/text.h"
#include "forms/known_value.h"
#include "forms/name_or_number.h"

namespace hx::forms {

using automation::Args;
using automation::Error;
using automation::Null;
using automation::ObjectRef;
using automation::Variant;

namespace {

constexpr std::int32_t splitCount = 2;

}  // namespace

Grid::Grid(std::string name) : Control(std::move(name)), selectedRows_(std::make_shared<SelectedRows>()) {
    for (std::int32_t i = 0; i < splitCount; ++i) splits_.push_back(std::make_shared<Split>());
}

Grid::~Grid() = default;

bool Grid::open() const noexcept { return recordset_ != nullptr && recordset_->state() == ado::adStateOpen; }

// Whoever writes or drops an edit on the recordset itself takes the grid's pending text with it.
bool Grid::pending() const { return open() && recordset_->editMode() == ado::adEditInProgress; }
bool Grid::holdsEdit() const { return pending() || (open() && recordset_->editMode() == ado::adEditAdd); }

void Grid::setDataSource(std::shared_ptr<ado::Recordset> recordset) {
    recordset_ = std::move(recordset);
    reload();
}

void Grid::reload() {
    const auto keep = share();
    editorClosed();
    dropEdit();
    selectedRows_->clear();
    rowsChanged.raise();
    currentCellChanged.raise();
}

void Grid::refetchRow() {
    const std::int32_t current = row();
    if (current == noRow) return;
    const auto keep = share();
    try {
        recordset_->resync(ado::adAffectCurrent);
    } catch (const automation::Error& error) {
        if (error.number() != ado::dbErrDeletedRow) throw;  // a row that is gone reads as empty from now on
    }
    setDataChanged(false);
    rowChanged.raise(current);
}

void Grid::refetch() {
    const auto keep = share();
    // Reading everything again would take a pending edit away from the user.
    if (open() && !holdsEdit()) recordset_->resync(ado::adAffectAll);
    rowsChanged.raise();
}

std::int32_t Grid::rowCount() const { return open() ? recordset_->recordCount() : 0; }

// The columns are those of the recordset in its order, until somebody binds them otherwise.
std::optional<std::size_t> Grid::fieldOf(std::int32_t column) const {
    if (!open() || column < 0 || static_cast<std::size_t>(column) >= columns_.size()) return {};
    const auto number = static_cast<std::size_t>(column);
    const std::string& name = columns_[number]->dataField();
    const auto& fields = recordset_->columns();
    if (number < fields.size() && fields[number].name == name) return number;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (automation::equalIgnoreCase(fields[i].name, name)) return i;
    }
    return {};
}

Variant Grid::value(std::int32_t row, std::int32_t column) const {
    const auto field = fieldOf(column);
    if (!field) return Null{};
    if (isNewRow(row) || (pending() && row == this->row())) return recordset_->field(*field).value();
    return row < 0 ? Variant(Null{}) : recordset_->valueAt(static_cast<std::size_t>(row), *field);
}

std::string Grid::text(std::int32_t row, std::int32_t column) const {
    if (column < 0 || static_cast<std::size_t>(column) >= columns_.size()) return {};
    if (row < 0 && !isNewRow(row)) return {};
    if (row >= rowCount()) return {};
    return columns_[static_cast<std::size_t>(column)]->valueItems().display(value(row, column));
}

std::int32_t Grid::row() const {
    const std::int32_t position = open() ? recordset_->absolutePosition() : 0;
    return position > 0 ? position - 1 : noRow;
}

ado::Bookmark Grid::bookmark() const { return open() ? recordset_->bookmark() : ado::Bookmark(); }
bool Grid::atBofOrEof() const { return !open() || recordset_->bof() || recordset_->eof(); }

void Grid::setMultiSelect(MultiSelect mode) {
    requireKnown(mode, {MultiSelect::none, MultiSelect::simple, MultiSelect::extended});
    assign(multiSelect_, mode, "MultiSelect");
}

void Grid::editorReported(const std::string& text, std::int32_t caret) {
    editorText_ = text;
    editorCaret_ = caret;
    editorOpen_ = true;
}

void Grid::editorClosed() {
    editorText_.clear();
    editorCaret_ = 0;
    editorOpen_ = false;
}

bool Grid::caretAtEnd() const {
    return !editorOpen_ || static_cast<std::size_t>(editorCaret_) >= automation::characterCount(editorText_);
}

bool Grid::claims(const KeyEvent& key) const { return std::ranges::find(claimed_, key) != claimed_.end(); }

GridHit Grid::hitTest(double x, double y) const { return hitTester_ ? hitTester_(x, y) : GridHit::nowhere; }

namespace {

constexpr std::string_view descending = " DESC";

// Words of SQL that stand in a statement only in brackets when they name a field.
constexpr auto reservedWords = std::to_array<std::string_view>(
    {"all",      "and",    "as",    "asc",    "between", "by",   "case",  "default", "delete", "desc",
     "distinct", "exists", "from",  "group",  "having",  "in",   "index", "is",      "join",   "key",
     "like",     "limit",  "not",   "null",   "on",      "or",   "order", "select",  "set",    "table",
     "then",     "to",     "union", "update", "values",  "when", "where"});

bool isWordCharacter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

std::string sortField(const std::string& field) {
    const bool word =
        !field.empty() && std::ranges::all_of(field, isWordCharacter) && (field[0] < '0' || field[0] > '9');
    const bool reserved = std::ranges::any_of(
        reservedWords, [&](std::string_view known) { return automation::equalIgnoreCase(known, field); });
    return word && !reserved ? field : "[" + field + "]";
}

std::string nextSort(const std::string& current, const std::string& field) {
    if (automation::equalIgnoreCase(current, field)) return field + std::string(descending);
    if (automation::equalIgnoreCase(current, field + std::string(descending))) return {};
    return field;
}

}  // namespace

Column* Grid::findColumn(std::string_view dataField) const {
    for (const auto& column : columns_) {
        if (automation::equalIgnoreCase(column->dataField(), dataField)) return column.get();
    }
    return nullptr;
}

Column& Grid::column(const Variant& fieldOrNumber) const {
    return itemOf(name(), columns_, fieldOrNumber, [this](std::string_view field) { return findColumn(field); });
}

std::int32_t Grid::columnNumber(const Variant& fieldOrNumber) const {
    const Column* wanted = &column(fieldOrNumber);
    const auto found = std::ranges::find(columns_, wanted, [](const auto& column) { return column.get(); });
    return static_cast<std::int32_t>(found - columns_.begin());
}

void Grid::requireColumn(std::int32_t column) const {
    if (column < 0 || static_cast<std::size_t>(column) >= columns_.size()) {
        automation::throwBadIndex(name(), Variant(column));
    }
}

Column& Grid::addColumn(const std::string& dataField) {
    auto column = std::make_shared<Column>(dataField);
    Column& added = *column;
    added.setOrder(static_cast<std::int16_t>(columns_.size()));
    columnSubscriptions_.push_back(
        added.changed.subscribe([this](std::string_view property) { columnChanged(property); }));
    columns_.push_back(std::move(column));
    columnsChanged.raise();
    leaveHiddenColumn();
    return added;
}

void Grid::clearColumns() {
    if (columns_.empty()) return;
    const auto removed = std::exchange(columns_, {});
    columnSubscriptions_.clear();
    col_ = 0;
    columnsChanged.raise();
}

void Grid::columnChanged(std::string_view property) {
    if (property == "Order" && !reordering_) columnsChanged.raise();
    if (property == "ValueItems") rowsChanged.raise();
    if (property == "Visible") leaveHiddenColumn();
}

// The keyboard moves from the current cell: it must be one that the user sees.
void Grid::leaveHiddenColumn() {
    const auto current = static_cast<std::size_t>(col_);
    if (current >= columns_.size() || columns_[current]->visible()) return;
    for (const Column* column : columnsInDisplayOrder()) {
        if (column->visible()) return setCol(columnNumber(Variant(column->dataField())));
    }
}

std::vector<Column*> Grid::columnsInDisplayOrder() const {
    std::vector<Column*> ordered;
    for (const auto& column : columns_) ordered.push_back(column.get());
    std::ranges::stable_sort(ordered, {}, [](const Column* column) { return column->order(); });
    return ordered;
}

Split& Grid::split(std::int32_t index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= splits_.size()) {
        automation::throwBadIndex(name(), Variant(index));
    }
    return *splits_[static_cast<std::size_t>(index)];
}

void Grid::setCol(std::int32_t column) {
    requireColumn(column);
    if (col_ == column) return;
    col_ = column;
    currentCellChanged.raise();
}

void Grid::columnResized(std::int32_t column, double twips) {
    requireColumn(column);
    Column& resized = *columns_[static_cast<std::size_t>(column)];
    if (resized.allowSizing()) resized.setWidth(twips);
}

void Grid::columnMoved(std::int32_t column, std::int16_t newOrder) {
    requireColumn(column);
    const auto keep = share();
    auto ordered = columnsInDisplayOrder();
    Column* moved = columns_[static_cast<std::size_t>(column)].get();
    std::erase(ordered, moved);
    const auto place = std::clamp<std::ptrdiff_t>(newOrder, 0, static_cast<std::ptrdiff_t>(ordered.size()));
    ordered.insert(ordered.begin() + place, moved);
    {
        const automation::Restore reordering(reordering_, true);
        for (std::size_t i = 0; i < ordered.size(); ++i) ordered[i]->setOrder(static_cast<std::int16_t>(i));
    }
    columnsChanged.raise();
}

std::pair<Column*, bool> Grid::sortColumn() const {
    std::string_view field = sortText_;
    const bool down = field.size() > descending.size() &&
                      automation::equalIgnoreCase(field.substr(field.size() - descending.size()), descending);
    if (down) field.remove_suffix(descending.size());
    if (field.starts_with('[') && field.ends_with(']')) field = field.substr(1, field.size() - 2);
    return {findColumn(field), down};
}

void Grid::headClick(std::int32_t column) {
    requireColumn(column);
    const auto keep = share();
    const std::string field = sortField(columns_[static_cast<std::size_t>(column)]->dataField());
    if (!leaveRow()) return;
    setSortText(nextSort(sortText_, field));
    headClickEvent.raise(column);
}

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
