// SPDX-License-Identifier: MIT
#include "automation/error.h"
#include "project/schema.h"
#include "recipe/mhxrcp_hirarch_func.h"

namespace hx::recipe {

namespace schema = project::schema;

namespace {

bool openAndCount(ado::Recordset& recordset) {
    if (recordset.state() == ado::adStateClosed) recordset.open();
    recordset.setFilter("");
    return recordset.recordCount() != 0;
}

void skippingErrors(const auto& statement) noexcept {
    try {
        statement();
    } catch (...) {
        // The statement has had no effect; the next one runs.
    }
}

}  // namespace

bool OpenAndMoveFirst(ado::Recordset& recordset) {
    if (!openAndCount(recordset)) return false;
    recordset.moveFirst();
    return true;
}

bool OpenAndMoveLast(ado::Recordset& recordset) {
    if (!openAndCount(recordset)) return false;
    recordset.moveLast();
    return true;
}

void FinishEdit(ado::Recordset& recordset, bool saveFirst) noexcept {
    if (saveFirst) skippingErrors([&] { recordset.update(); });
    skippingErrors([&] { recordset.cancelUpdate(); });
}

bool CloseRecordset(ado::Recordset& recordset, bool saveFirst) noexcept {
    // A recordset with a pending edit cannot be closed.
    FinishEdit(recordset, saveFirst);
    skippingErrors([&] { recordset.close(); });
    return recordset.state() == ado::adStateClosed;
}

void RenameRecipe(ado::Recordset& recipes, const std::string& oldName, const std::string& newName) {
    if (recipes.state() == ado::adStateOpen) recipes.close();
    recipes.open();
    recipes.moveFirst();
    // An apostrophe in the name is not doubled: such a name makes the criterion an error.
    recipes.find("Name='" + oldName + "'");
    recipes.field(schema::recipe::name).setValue(newName);
    recipes.update();
}

}  // namespace hx::recipe
