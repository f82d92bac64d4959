// SPDX-License-Identifier: MIT
#include "automation/restore.h"
#include "automation/text.h"
#include "editor/frmtabgrid.h"
#include "editor/guard.h"
#include "editor/msurfing_grid.h"
#include "project/schema.h"
#include "recipe/conflict.h"
#include "recipe/node_key.h"
#include "resources/text_ids.h"

namespace hx::editor {

using automation::Error;
using automation::Variant;
namespace member = project::schema::member;

namespace {

constexpr automation::Sentence dropped{"The entry \"%1\" could not be stored and was dropped. %2",
                                       "Die Eingabe \"%1\" konnte nicht gespeichert werden und wurde verworfen. %2"};

}  // namespace

std::shared_ptr<ado::Recordset> MSurfingGrid::members() const {
    const auto& data = window_.dataEnvironment();
    return data == nullptr ? nullptr : data->recordset(grid_.dataMember());
}

void MSurfingGrid::dropEdit() noexcept {
    try {
        grid_.cancelUpdate();
    } catch (const Error&) {
        // Nothing is pending any more, or the connection is gone with it.
    }
}

// What the database said earlier must not be taken for the reason of the next error.
void MSurfingGrid::clearErrors() {
    if (const auto& data = window_.dataEnvironment()) data->CnnRecipes->clearErrors();
}

// What the user has typed into the current row.
std::string MSurfingGrid::entry() const noexcept {
    try {
        return grid_.text(grid_.row(), grid_.columnNumber(Variant(member::varRecipe)));
    } catch (const Error&) {
        return {};  // the edit is of another column, and the row cannot be read
    }
}

// The grid has numbers of its own for what the database said.
Error MSurfingGrid::lossOf(const std::string& entry, const Error& reason) const {
    const auto& errors = window_.dataEnvironment()->CnnRecipes->errors();
    const Error told = errors.empty() ? reason : errors.back();
    const automation::Language language = addIn_.texts().wording();
    return {told.number(), automation::say(language, dropped, {entry, told.description(language)})};
}

std::optional<Error> MSurfingGrid::writeOrDrop() {
    grid_.settle();
    const std::string_view type = recipe::KeyPrefix(window_.nodeKey());
    if (type != recipe::prefixRecipe && type != recipe::prefixSubRecipes) return {};
    clearErrors();
    std::optional<Error> lost;
    // The view could not even hand the text over.
    if (grid_.editorOpen()) lost = lossOf(grid_.editorText(), Error(automation::errFail, std::string()));
    if (!holdsEdit()) return lost;
    const std::string typed = entry();
    try {
        grid_.update();
    } catch (const Error& error) {
        lost = lossOf(typed, error);
        dropEdit();  // the selection is about to change: there is nowhere left to correct the row
        clearErrors();
    }
    return lost;
}

void MSurfingGrid::finishOrDrop() {
    const std::optional<Error> lost = writeOrDrop();
    if (!lost) return;
    const Busy busy(addIn_.busy());
    showError(window_.screen(), *lost, "VerifyAdds");
}

void MSurfingGrid::leavingRow(bool& stay) {
    stay = true;
    guard(addIn_, "tdbRM_BeforeUpdate", [&] { stay = !finishRow(); });
}

bool MSurfingGrid::finishRow() {
    try {
        grid_.update();
        return true;
    } catch (const Error& error) {
        const Busy busy(addIn_.busy());
        const bool rowStays = error.number() == forms::gridErrRowRefused || error.number() == forms::gridErrStaleRow;
        const automation::Restore byTheGrid(gridShowsError_, !rowStays);
        grid_.reportError(error);
        return false;
    }
}

void MSurfingGrid::reportedError(forms::GridError& error) {
    if (gridShowsError_) return;
    guard(addIn_, "tdbRM_Error", [&] {
        const Busy busy(addIn_.busy());
        const std::optional<Error> told = conflict();
        if (error.code == forms::gridErrStaleRow) resetStaleRows(error.code);
        window_.screen().beep();
        showRefusals(error.code);
        if (told) showConflict(*told);
    });
    error.response = 0;
    grid_.setFocus();
}

void MSurfingGrid::viewFailed(forms::GridError& error) {
    error.response = 0;
    const Busy busy(addIn_.busy());
    showError(window_.screen(), Error(error.code, error.description), "tdbRM");
}

void MSurfingGrid::resetStaleRows(std::int32_t code) {
    const std::string text = addIn_.texts().GetResource(resources::text_id::staleRow);
    window_.screen().messageBox(automation::replaceAll(text, "<DataError>", std::to_string(code)), forms::message::ok,
                                forms::message::defaultTitle);
    dropEdit();
    const auto recordset = members();
    if (recordset == nullptr || recordset->state() != ado::adStateOpen) return;
    recordset->requery();  // and stands on the first row; a row that is gone would stay in the list
    grid_.reload();
}

void MSurfingGrid::showRefusals(std::int32_t code) {
    const auto& data = window_.dataEnvironment();
    if (data == nullptr) return;
    const std::vector<Error> errors = data->CnnRecipes->errors();
    data->CnnRecipes->clearErrors();
    for (const Error& error : errors) {
        if (error.number() == ado::dbErrDuplicate) refuseDuplicate();
        else if (code == forms::gridErrRowRefused && error.number() != ado::dbErrRowChanged) showRefusal(error);
    }
}

// What the database has just refused because another has changed or deleted the row; says what was entered.
std::optional<Error> MSurfingGrid::conflict() const {
    const auto recordset = members();
    if (recordset == nullptr || recordset->editMode() != ado::adEditInProgress) return {};
    const recipe::ColumnNames names{
        [this](const ado::Field& field) { return grid_.column(Variant(field.name())).caption(); },
        [this](const ado::Field&, const Variant& value) {
            return recipe::valueInWords(value, addIn_.texts().wording());
        }};
    for (const Error& refused : window_.dataEnvironment()->CnnRecipes->errors()) {
        if (recipe::isConflict(refused)) return recipe::conflictOf(refused, *recordset, addIn_.texts(), names);
    }
    return {};
}

// The row then shows what is stored now.
void MSurfingGrid::showConflict(const Error& conflict) {
    dropEdit();
    showError(window_.screen(), conflict, "tdbRM_Error");
    grid_.refetchRow();
}

// The row stays as the user typed it, to be corrected.
void MSurfingGrid::showRefusal(const Error& error) { showError(window_.screen(), error, "tdbRM_Error"); }

void MSurfingGrid::refuseDuplicate() {
    dropEdit();
    window_.screen().messageBox("Doppelter Name", forms::message::ok, forms::message::defaultTitle);
    grid_.refetchRow();
}

void MSurfingGrid::buttonClicked(std::int32_t column) {
    if (grid_.columns()[static_cast<std::size_t>(column)]->dataField() != member::varRecipe) return;
    guard(addIn_, "tdbRM_ButtonClick", [this] { chooseVariable(); });
}

void MSurfingGrid::chooseVariable() {
    grid_.settle();
    const std::int32_t row = grid_.row();
    if (row < 0 && !grid_.addNewMode()) return;
    const std::int32_t column = grid_.columnNumber(Variant(member::varRecipe));
    if (!grid_.editable(column)) return;
    std::string chosen;
    {
        const Busy busy(addIn_.busy());
        chosen = addIn_.services().items.choose(window_.handle(), grid_.text(row, column));
    }
    const std::string_view name = automation::trim(chosen);
    if (name.empty()) return;
    grid_.setText(row, column, std::string(name));
    grid_.setDataChanged(true);
    grid_.setFocus();
}

}  // namespace hx::editor
