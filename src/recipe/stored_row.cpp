// SPDX-License-Identifier: MIT
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

bool RowInDialog::begin() noexcept {
    return succeeds([this] {
        row_ = recordset_.clone();
        row_->setBookmark(recordset_.bookmark());
        row_->edit();
    });
}

void RowInDialog::store() {
    try {
        row_->update();
    } catch (const Error& error) {
        throw conflictOf(error, *row_, texts_, names_);
    }
}

bool forEachField(ado::Recordset& recordset, const std::function<void(ado::Field&)>& use) noexcept {
    return succeeds([&] {
        const std::size_t count = recordset.fieldCount();
        for (std::size_t i = 0; i < count; ++i) use(recordset.field(i));
    });
}

bool showStoring(RecipeWindow& window, dialogs::Dialog& dialog, const Refusal& refused,
                 const std::function<bool()>& store) {
    struct Accepting {
        dialogs::Dialog& dialog;
        ~Accepting() { dialog.setAccept(nullptr); }
    } const accepting{dialog};
    bool stored = false;
    // When another has changed or deleted the row, every further try would be refused.
    dialog.setAccept([&] {
        if (!refused) return true;
        try {
            stored = store();
            return true;
        } catch (const Error& error) {
            if (isConflict(error)) return true;
            refused(error);
            return false;
        }
    });
    forms::Form& owner = window.editorWindow();
    dialog.setOwner(owner.share());
    dialog.showModal(owner.handle());
    return stored;
}

}  // namespace hx::recipe
