#include "automation/error.h"
#include "recipe/mhxrcp_hirarch_func.h"
#include "recipe/schema.h"

namespace hx::recipe {

namespace {

bool openAndCount(ado::Recordset& recordset) {
    if (recordset.state() == ado::adStateClosed) recordset.open();
    recordset.setFilter("");
    return recordset.recordCount() != 0;
}

/// Runs statements one by one; a failing one is skipped and the next one runs. A failure stays noted.
class SkippingErrors {
  public:
    template <class Statement>
    void run(Statement&& statement) noexcept {
        try {
            statement();
        } catch (...) {
            failed_ = true;
        }
    }
    [[nodiscard]] bool failed() const noexcept { return failed_; }

  private:
    bool failed_ = false;
};

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

bool CloseRecordset(ado::Recordset& recordset, bool saveFirst) noexcept {
    SkippingErrors steps;
    if (recordset.state() == ado::adStateOpen) steps.run([&] { recordset.close(); });
    if (!steps.failed()) return true;
    if (saveFirst) {
        steps.run([&] { recordset.update(); });
        steps.run([&] { recordset.close(); });
    }
    // The failure of the first close is still noted, so this runs also after the row was saved and closed: it then
    // finds a closed recordset, and both statements are skipped.
    steps.run([&] { recordset.cancelUpdate(); });
    steps.run([&] { recordset.close(); });
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
