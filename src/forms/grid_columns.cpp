#include <algorithm>
#include <array>

#include "automation/convert.h"
#include "automation/restore.h"
#include "automation/text.h"
#include "forms/grid.h"

namespace hx::forms {

using automation::Variant;

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

std::int32_t Grid::columnNumber(const Variant& fieldOrNumber) const {
    if (!fieldOrNumber.isString()) {
        const std::int32_t number = automation::toInt32(fieldOrNumber);
        requireColumn(number);
        return number;
    }
    const auto found = std::ranges::find_if(columns_, [&](const auto& column) {
        return automation::equalIgnoreCase(column->dataField(), fieldOrNumber.asString());
    });
    if (found == columns_.end()) automation::throwBadIndex(name(), fieldOrNumber);
    return static_cast<std::int32_t>(found - columns_.begin());
}

Column& Grid::column(const Variant& fieldOrNumber) const {
    return *columns_[static_cast<std::size_t>(columnNumber(fieldOrNumber))];
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

void Grid::headClick(std::int32_t column) {
    requireColumn(column);
    const auto keep = share();
    const std::string field = sortField(columns_[static_cast<std::size_t>(column)]->dataField());
    if (!leaveRow()) return;
    setSortText(nextSort(sortText_, field));
    headClickEvent.raise(column);
}

}  // namespace hx::forms
