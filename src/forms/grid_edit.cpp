// SPDX-License-Identifier: MIT
#include <array>

#include "ado/errors.h"
#include "ado/row_edit.h"
#include "automation/convert.h"
#include "automation/restore.h"
#include "forms/form.h"
#include "forms/grid.h"

namespace hx::forms {

using automation::Error;
using automation::Null;
using automation::Variant;

namespace {

/// How the grid numbers what a provider reports.
struct Translation {
    std::int32_t provider;
    std::int32_t grid;
};
constexpr std::array<Translation, 6> updateErrors{{{ado::dbErrDuplicate, gridErrRowRefused},
                                                   {ado::dbErrRowChanged, gridErrRowRefused},
                                                   {ado::dbErrCannotConvert, gridErrRowRefused},
                                                   {ado::dbErrIntegrity, gridErrRowRefused},
                                                   {ado::dbErrDeletedRow, gridErrStaleRow},
                                                   {ado::adErrNoCurrentRecord, gridErrStaleRow}}};
constexpr std::array<Translation, 3> typingErrors{{{ado::dbErrCannotConvert, gridErrBadValue},
                                                   {ado::dbErrDeletedRow, gridErrStaleRow},
                                                   {ado::adErrNoCurrentRecord, gridErrStaleRow}}};

template <std::size_t N>
std::int32_t translated(std::int32_t number, const std::array<Translation, N>& table) {
    for (const Translation& entry : table) {
        if (entry.provider == number) return entry.grid;
    }
    return number;
}

bool isText(ado::DataType type) { return type == ado::adVarWChar || type == ado::adLongVarWChar; }

}  // namespace

void Grid::announceCell(std::int32_t oldRow) {
    if (row() != oldRow) currentCellChanged.raise();
}

// A handler that neither writes nor stays leaves the writing to the grid: an edit is never dropped on the way.
bool Grid::leaveRow() {
    if (!dataChanged_ && !addNewMode_ && !pending()) return true;
    if (leaving_) return false;
    const automation::Restore leaving(leaving_, true);
    bool stay = false;
    leavingRowEvent.raise(stay);
    if (stay) return false;
    return (!dataChanged_ && !addNewMode_ && !pending()) || tryUpdate();
}

bool Grid::tryUpdate() {
    try {
        update();
        return true;
    } catch (const Error& error) {
        reportError(error);
        return false;
    }
}

bool Grid::setRow(std::int32_t row) {
    if (row < 0 || row >= rowCount()) automation::throwBadIndex(name(), Variant(row));
    const std::int32_t before = this->row();
    if (before == row && !addNewMode_) return true;
    const auto keep = share();
    const ado::Bookmark target = recordset_->bookmarkAt(static_cast<std::size_t>(row));
    if (leaveRow() && open()) {
        const bool inPlace = recordset_->bookmarkAt(static_cast<std::size_t>(row)) == target;
        moveTo(inPlace ? row : static_cast<std::int32_t>(recordset_->indexOf(target)));
    }
    const bool arrived = open() && recordset_->bookmark() == target;
    announceCell(before);
    return arrived;
}

// By position, not by bookmark: in a sorted recordset a bookmark has to be looked for.
void Grid::moveTo(std::int32_t row) {
    if (row != noRow) recordset_->setAbsolutePosition(row + 1);
}

void Grid::setAddNewMode(bool on) {
    if (addNewMode_ == on) return;
    if (!on) return cancelUpdate();
    if (!open()) ado::throwObjectClosed();
    const auto keep = share();
    if (!leaveRow()) return;
    const std::int32_t before = row();
    recordset_->addNew();
    addNewMode_ = true;
    changed.raise("AddNewMode");
    announceCell(before);
}

bool Grid::editable(std::int32_t column) const {
    const auto field = fieldOf(column);
    if (!field || !allowUpdate_) return false;
    const Column& shown = *columns_[static_cast<std::size_t>(column)];
    const ado::Column& stored = recordset_->columns()[*field];
    return !shown.locked() && !shown.valueItems().translates() && stored.updatable && !stored.isKey;
}

std::size_t Grid::longestText(std::int32_t column) const {
    const auto field = fieldOf(column);
    return field ? ado::longestText(recordset_->columns()[*field]) : 0;
}

void Grid::setText(std::int32_t row, std::int32_t column, const std::string& text) {
    requireColumn(column);
    if (!editable(column)) {
        throw Error(automation::errMemberNotFound,
                    "The column \"" + columns_[static_cast<std::size_t>(column)]->dataField() + "\" cannot be edited");
    }
    const auto keep = share();
    if (!isNewRow(row) && !setRow(row)) return;
    if (text == this->text(row, column)) return;
    try {
        changeCell(column, text);
    } catch (const Error& error) {
        return reportError(error.withNumber(translated(error.number(), typingErrors)));
    }
    setDataChanged(true);
    rowChanged.raise(row);
}

void Grid::changeCell(std::int32_t column, const std::string& text) {
    const std::size_t field = fieldOf(column).value();
    const bool nothing = text.empty() && !isText(recordset_->columns()[field].type);
    recordset_->field(field).setValue(nothing ? Variant(Null{}) : Variant(text));
}

void Grid::setDataChanged(bool dataChanged) { assign(dataChanged_, dataChanged, "DataChanged"); }

void Grid::update() {
    const auto keep = share();
    if (open()) {
        try {
            recordset_->update();
        } catch (const Error& error) {
            throw error.withNumber(translated(error.number(), updateErrors));
        }
    }
    const bool added = std::exchange(addNewMode_, false);
    setDataChanged(false);
    if (added) {
        changed.raise("AddNewMode");
        rowsChanged.raise();
        currentCellChanged.raise();
    } else if (row() != noRow) {
        rowChanged.raise(row());
    }
}

// Takes back everything that waits to be written, without a word to the view.
void Grid::dropEdit() {
    if (holdsEdit()) recordset_->cancelUpdate();
    addNewMode_ = false;
    setDataChanged(false);
}

void Grid::cancelUpdate() {
    const auto keep = share();
    const bool added = addNewMode_;
    dropEdit();
    if (added) {
        changed.raise("AddNewMode");
        currentCellChanged.raise();
    } else if (row() != noRow) {
        rowChanged.raise(row());
    }
}

GridError Grid::inWords(const Error& error) const {
    const auto language = form() == nullptr ? automation::Language::english : form()->screen().language();
    return {error.number(), error.description(language)};
}

void Grid::reportError(const Error& error) {
    const auto keep = share();
    GridError reported = inWords(error);
    errorEvent.raise(reported);
    showError(reported);
}

void Grid::viewFailed(const Error& error) {
    const auto keep = share();
    GridError reported = inWords(error);
    viewErrorEvent.raise(reported);
    showError(reported);
}

void Grid::showError(const GridError& error) const {
    if (error.response == 0 || form() == nullptr) return;
    form()->screen().messageBox(std::to_string(error.code) + ": " + error.description, message::ok,
                                message::defaultTitle);
}

void Grid::buttonClick(std::int32_t row, std::int32_t column) {
    requireColumn(column);
    const auto keep = share();
    if (!isNewRow(row) && !setRow(row)) return;
    setCol(column);
    buttonClickEvent.raise(column);
}

}  // namespace hx::forms
