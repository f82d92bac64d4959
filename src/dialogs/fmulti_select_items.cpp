// SPDX-License-Identifier: MIT
#include "dialogs/fmulti_select_items.h"

namespace hx::dialogs {

FMultiSelectItems::FMultiSelectItems(const host::Services& services, resources::Help& help)
    : Dialog("FMultiSelectItems", services, help, resources::help_context::itemsDialog),
      hxMI(add<forms::HXMultiItems>("hxMI")) {
    setCaption("Rezeptelemente");
    addRow({.field = hxMI.get(), .grows = true});
    addDialogButtons();
    captionDialogButtons();
    hear(cmdOk->clickEvent, [this] { closeWith(false); });
    hear(cmdCancel->clickEvent, [this] { closeWith(true); });
    on(queryUnloadEvent, &FMultiSelectItems::onQueryUnload);
}

void FMultiSelectItems::onQueryUnload(bool& cancel, forms::UnloadMode mode) {
    if (mode != forms::UnloadMode::byUser) return;
    cancel = true;
    hide();
}

const automation::MemberTable& FMultiSelectItems::members() const {
    static const automation::MemberTable table{"FMultiSelectItems", {}, &dialogMembers()};
    return table;
}

}  // namespace hx::dialogs
