// SPDX-License-Identifier: MIT
#include "server/lent_items_screen.h"

#include <array>

#include "automation/convert.h"
#include "dialogs/fmulti_select_items.h"

namespace hx::server {

namespace {

constexpr const char* selected = "SelectedItems";

}  // namespace

// A choice that the dialog does not accept is asked for again: the user has been told why.
void LentItemsScreen::showModal(forms::Form& form, forms::WindowHandle owner) {
    auto* const dialog = dynamic_cast<dialogs::FMultiSelectItems*>(&form);
    const automation::ObjectRef items = lent_.multiItems;
    if (dialog == nullptr || items == nullptr) return RelayingScreen::showModal(form, owner);
    forms::HXMultiItems& own = *dialog->hxMI;
    do {
        items->set("ItemFilter", own.itemFilter());
        items->set(selected, own.get(selected));
        dialog->setCancelled(true);
        const std::array<automation::Variant, 1> window{lent_.known(owner)};
        if (!automation::toBoolean(items->get("Choose", window))) return;
        own.set(selected, items->get(selected));
        dialog->cmdOk->click();
    } while (dialog->cancelled());
}

}  // namespace hx::server
