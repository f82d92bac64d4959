// SPDX-License-Identifier: MIT
#pragma once

#include "forms/captioned.h"

namespace hx::forms {

/// A push button. `Default` is pressed by Enter, `Cancel` by Esc. click() does nothing while disabled.
class CommandButton : public Captioned {
  public:
    using Captioned::Captioned;
    void click();
    [[nodiscard]] bool isDefault() const noexcept { return default_; }
    void setDefault(bool value) { assign(default_, value, "Default"); }
    [[nodiscard]] bool isCancel() const noexcept { return cancel_; }
    void setCancel(bool value) { assign(cancel_, value, "Cancel"); }
    Event<> clickEvent;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    bool default_ = false;
    bool cancel_ = false;
};

}  // namespace hx::forms
