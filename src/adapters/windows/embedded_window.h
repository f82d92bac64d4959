// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

#include "automation/dispatch.h"

namespace hx::windows {

/// Stands for what a host has around an editor window: class "MDIEdit", method Show. Nothing once the window is gone.
class EmbeddedWindow : public automation::Dispatch {
  public:
    explicit EmbeddedWindow(HWND window) : window_(window) {}
    void Show() { ShowWindow(window_, SW_SHOWNA); }
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    HWND window_;
};

}  // namespace hx::windows
