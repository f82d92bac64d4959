// SPDX-License-Identifier: MIT
#pragma once

#include "forms/relaying_screen.h"
#include "hosting/lent_services.h"

namespace hx::server {

/// A screen where the choice of many variables is the host's, when it lends one: in place of the dialog.
class LentItemsScreen : public forms::RelayingScreen {
  public:
    /// Both are lent.
    LentItemsScreen(forms::Screen& next, const hosting::LentServices& lent) : RelayingScreen(next), lent_(lent) {}
    void showModal(forms::Form& form, forms::WindowHandle owner) override;

  private:
    const hosting::LentServices& lent_;
};

}  // namespace hx::server
