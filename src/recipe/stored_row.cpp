#include "recipe/stored_row.h"

namespace hx::recipe {

using automation::Error;

namespace {

bool succeeds(const auto& action) noexcept {
    try {
        action();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace

bool readAgain(ado::Recordset& recordset) noexcept {
    return succeeds([&] { recordset.resync(ado::adAffectCurrent); });
}

bool forEachField(ado::Recordset& recordset, const std::function<void(ado::Field&)>& use) noexcept {
    return succeeds([&] {
        const std::size_t count = recordset.fieldCount();
        for (std::size_t i = 0; i < count; ++i) use(recordset.field(i));
    });
}

void showOver(RecipeWindow& window, dialogs::Dialog& dialog, std::function<bool()> accept) {
    struct Accepting {
        dialogs::Dialog& dialog;
        ~Accepting() { dialog.setAccept(nullptr); }
    } const accepting{dialog};
    dialog.setAccept(std::move(accept));
    forms::Form& owner = window.editorWindow();
    dialog.setOwner(owner.share());
    dialog.showModal(owner.handle());
}

void storeOrRestore(ado::Recordset& recordset, bool written, const std::function<void()>& tell) {
    if (!written) {
        tell();
        return recordset.resync(ado::adAffectCurrent);
    }
    try {
        recordset.update();
    } catch (const Error&) {
        recordset.cancelUpdate();
        throw;
    }
}

}  // namespace hx::recipe
