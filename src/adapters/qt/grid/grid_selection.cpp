// SPDX-License-Identifier: MIT
#include "adapters/qt/grid/grid_selection.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <vector>

namespace hx::qt {

namespace {

/// The rows of a selection as bookmarks: those that were selected before keep their place, the new ones follow.
std::vector<ado::Bookmark> bookmarksOf(const QItemSelection& selection, const ado::Recordset& rows,
                                       const forms::SelectedRows& before) {
    std::vector<ado::Bookmark> added, result;
    ado::KeyMarks selected;
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const ado::Bookmark bookmark = rows.bookmarkAt(static_cast<std::size_t>(row));
            if (bookmark.isNull()) continue;
            if (before.count() > 0) selected.insert(bookmark.key());
            if (!before.contains(bookmark)) added.push_back(bookmark);
        }
    }
    for (const ado::Bookmark& bookmark : before.bookmarks()) {
        if (selected.contains(bookmark.key())) result.push_back(bookmark);
    }
    if (result.empty()) return added;
    result.insert(result.end(), added.begin(), added.end());
    return result;
}

// So few bookmarks are looked up one by one, which in a sorted recordset takes a walk for each; more of them in one
// walk.
constexpr std::size_t few = 4;

std::vector<int> rowsOfFew(const std::vector<ado::Bookmark>& bookmarks, const ado::Recordset& recordset) {
    std::vector<int> rows;
    for (const ado::Bookmark& bookmark : bookmarks) {
        if (const auto row = recordset.indexOf(bookmark); row >= 0) rows.push_back(static_cast<int>(row));
    }
    std::ranges::sort(rows);
    return rows;
}

/// The rows of bookmarks, in their order in the recordset.
std::vector<int> rowsOf(const std::vector<ado::Bookmark>& bookmarks, const ado::Recordset& recordset) {
    if (bookmarks.size() <= few) return rowsOfFew(bookmarks, recordset);
    ado::KeyMarks keys;
    for (const ado::Bookmark& bookmark : bookmarks) {
        if (!bookmark.isNull()) keys.insert(bookmark.key());
    }
    std::vector<int> rows;
    rows.reserve(keys.size());
    const std::int32_t count = recordset.recordCount();
    for (std::int32_t row = 0; row < count && rows.size() < keys.size(); ++row) {
        if (keys.contains(recordset.bookmarkAt(static_cast<std::size_t>(row)).key())) rows.push_back(row);
    }
    return rows;
}

}  // namespace

GridSelection::GridSelection(GridModel& model) : QItemSelectionModel(&model), model_(model) {
    connect(this, &QItemSelectionModel::selectionChanged, this, [this] { report(); });
}

void GridSelection::setCurrentIndex(const QModelIndex& index, QItemSelectionModel::SelectionFlags command) {
    forms::Grid* grid = model_.grid();
    if (grid == nullptr || following_ || !index.isValid()) {
        QItemSelectionModel::setCurrentIndex(index, command);
        return;
    }
    const QPersistentModelIndex target = index;
    if (!goTo(index.row(), index.column())) return followCurrentCell();
    if (model_.grid() == nullptr || !target.isValid()) return;
    // The grid's own report may have made the cell current already; then nothing would be selected.
    if (command != NoUpdate) select(target, command);
    QItemSelectionModel::setCurrentIndex(target, NoUpdate);
}

bool GridSelection::goTo(int row, int column) {
    forms::Grid& grid = *model_.grid();
    bool there = false;
    model_.errors().run([&] {
        const auto keep = grid.share();
        // The recordset may have lost its rows without a word.
        if (row >= grid.rowCount() || (grid.row() != row && !grid.setRow(row))) return;
        if (model_.grid() == nullptr) return;
        if (grid.col() != column) grid.setCol(column);
        there = grid.row() == row && grid.col() == column;
    });
    return there;
}

void GridSelection::followCurrentCell() {
    if (model_.grid() == nullptr) return;
    const QScopedValueRollback following(following_, true);
    model_.followCurrentRow();
    const QModelIndex cell = model_.currentCell();
    if (cell == currentIndex()) return;
    if (cell.isValid()) QItemSelectionModel::setCurrentIndex(cell, NoUpdate);
    else clearCurrentIndex();
}

void GridSelection::followSelectedRows() {
    forms::Grid* grid = model_.grid();
    if (grid == nullptr || reporting_) return;
    const QScopedValueRollback following(following_, true);
    QItemSelection selection;
    model_.errors().read([&] { selection = selectedIn(*grid); });
    if (selection.isEmpty() && !hasSelection()) return;
    select(selection, ClearAndSelect | Rows);
}

QItemSelection GridSelection::selectedIn(forms::Grid& grid) const {
    const auto& bookmarks = grid.selectedRows().bookmarks();
    const auto recordset = grid.dataSource();
    if (bookmarks.empty() || !recordset || recordset->state() != ado::adStateOpen) return {};
    const auto rows = rowsOf(bookmarks, *recordset);
    const int lastColumn = model_.columnCount() - 1;
    QItemSelection selection;
    for (std::size_t first = 0, last = 0; first < rows.size(); first = last + 1) {
        for (last = first; last + 1 < rows.size() && rows[last + 1] <= rows[last] + 1;) ++last;
        if (rows[last] >= model_.rowCount()) break;
        selection.append(QItemSelectionRange(model_.index(rows[first], 0), model_.index(rows[last], lastColumn)));
    }
    return selection;
}

void GridSelection::report() {
    forms::Grid* grid = model_.grid();
    if (grid == nullptr || following_ || reporting_) return;
    const auto recordset = grid->dataSource();
    if (!recordset || recordset->state() != ado::adStateOpen) return;
    const bool told = model_.errors().run([&] {
        const QScopedValueRollback reporting(reporting_, true);
        grid->selectedRows().set(bookmarksOf(selection(), *recordset, grid->selectedRows()));
    });
    if (!told) followSelectedRows();
}

}  // namespace hx::qt
