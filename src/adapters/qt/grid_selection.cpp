#include "adapters/qt/grid_selection.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <unordered_set>
#include <vector>

namespace hx::qt {

namespace {

/// The rows of a selection as bookmarks: those that were selected before keep their place, the new ones follow.
std::vector<ado::Bookmark> bookmarksOf(const QItemSelection& selection, const ado::Recordset& rows,
                                       const std::vector<ado::Bookmark>& before) {
    std::vector<ado::Bookmark> selected;
    std::unordered_set<ado::Key> keys;
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const ado::Bookmark bookmark = rows.bookmarkAt(static_cast<std::size_t>(row));
            if (!bookmark.isNull() && keys.insert(bookmark.key()).second) selected.push_back(bookmark);
        }
    }
    std::vector<ado::Bookmark> result;
    result.reserve(selected.size());
    for (const ado::Bookmark& bookmark : before) {
        if (!bookmark.isNull() && keys.erase(bookmark.key()) > 0) result.push_back(bookmark);
    }
    for (const ado::Bookmark& bookmark : selected) {
        if (keys.contains(bookmark.key())) result.push_back(bookmark);
    }
    return result;
}

std::vector<int> rowsOf(const std::vector<ado::Bookmark>& bookmarks, const ado::Recordset& recordset) {
    std::vector<int> rows;
    rows.reserve(bookmarks.size());
    for (const ado::Bookmark& bookmark : bookmarks) {
        if (const auto row = recordset.indexOf(bookmark); row >= 0) rows.push_back(static_cast<int>(row));
    }
    std::ranges::sort(rows);
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
    const int column = index.column();
    const QPersistentModelIndex target = index;
    if (grid->row() != index.row() && !grid->setRow(index.row())) return followCurrentCell();
    if (model_.grid() == nullptr || !target.isValid()) return;
    if (grid->col() != column) grid->setCol(column);
    // The grid's own report may have made the cell current already; then nothing would be selected.
    if (command != NoUpdate) select(target, command);
    QItemSelectionModel::setCurrentIndex(target, NoUpdate);
}

void GridSelection::followCurrentCell() {
    if (model_.grid() == nullptr) return;
    const QScopedValueRollback following(following_, true);
    const QModelIndex cell = model_.currentCell();
    if (cell == currentIndex()) return;
    if (cell.isValid()) QItemSelectionModel::setCurrentIndex(cell, NoUpdate);
    else clearCurrentIndex();
}

void GridSelection::followSelectedRows() {
    forms::Grid* grid = model_.grid();
    if (grid == nullptr || reporting_) return;
    const QScopedValueRollback following(following_, true);
    const auto& bookmarks = grid->selectedRows().bookmarks();
    const auto recordset = grid->dataSource();
    QItemSelection selection;
    if (!bookmarks.empty() && recordset && recordset->state() == ado::adStateOpen) {
        const auto rows = rowsOf(bookmarks, *recordset);
        const int lastColumn = model_.columnCount() - 1;
        for (std::size_t first = 0, last = 0; first < rows.size(); first = last + 1) {
            for (last = first; last + 1 < rows.size() && rows[last + 1] <= rows[last] + 1;) ++last;
            if (rows[last] >= model_.rowCount()) break;
            selection.append(QItemSelectionRange(model_.index(rows[first], 0), model_.index(rows[last], lastColumn)));
        }
    }
    if (selection.isEmpty() && !hasSelection()) return;
    select(selection, ClearAndSelect | Rows);
}

void GridSelection::report() {
    forms::Grid* grid = model_.grid();
    if (grid == nullptr || following_ || reporting_) return;
    const QScopedValueRollback reporting(reporting_, true);
    const auto recordset = grid->dataSource();
    if (!recordset || recordset->state() != ado::adStateOpen) return;
    grid->selectedRows().set(bookmarksOf(selection(), *recordset, grid->selectedRows().bookmarks()));
}

}  // namespace hx::qt
