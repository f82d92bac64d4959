// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/dialog.h"
#include "forms/multi_items.h"

namespace hx::dialogs {

/// The choice of a recipe's variables. Cancelled is false from the start: closing by the frame only hides the dialog
/// and leaves the flag as it is, so that it counts as OK unless the caller has set the flag before. The selection is
/// read from hxMI afterwards. Its texts are German.
class FMultiSelectItems : public Dialog {
  public:
    FMultiSelectItems(const host::Services& services, resources::Help& help);

    std::shared_ptr<forms::HXMultiItems> hxMI;

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    void onQueryUnload(bool& cancel, forms::UnloadMode mode);
};

}  // namespace hx::dialogs
