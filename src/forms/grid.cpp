#include "forms/grid.h"

#include <algorithm>

#include "automation/convert.h"
#include "automation/text.h"
#include "forms/known_value.h"

namespace hx::forms {

using automation::Null;
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

}  // namespace hx::forms
