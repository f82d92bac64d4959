// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "editor/add_in.h"
#include "forms/event.h"

namespace hx::editor {

class frmtabgrid;
class Menus;

/// What the bin of the tool bar deletes: of the member grid and the explorer that which the user was at last. In the
/// grid he is with the keyboard or when he selects rows, and means the selected rows, or the current one when there are
/// none; in the explorer he means the recipe.
class Bin {
  public:
    Bin(frmtabgrid& window, Menus& menus, AddIn& addIn);

    void explorerUsed() noexcept { meansRows_ = false; }
    /// The tool that deletes it; empty when there is nothing to delete.
    [[nodiscard]] std::string_view tool() const;
    /// What it is, as "Rezept Mix". A name that cannot be read is left out.
    [[nodiscard]] std::string target() const;
    /// Selects the current row where the tool would find none selected.
    void selectTarget();

  private:
    [[nodiscard]] std::string rowName() const;
    [[nodiscard]] std::string text(std::int32_t number) const { return addIn_.texts().GetResource(number); }

    frmtabgrid& window_;
    Menus& menus_;
    AddIn& addIn_;
    bool meansRows_ = false;
    std::vector<forms::Subscription> subscriptions_;
};

}  // namespace hx::editor
