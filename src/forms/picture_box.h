// SPDX-License-Identifier: MIT
#pragma once

#include "forms/control.h"

namespace hx::forms {

/// A plain area that reports the mouse.
class PictureBox : public Control {
  public:
    using Control::Control;
    [[nodiscard]] const automation::MemberTable& members() const override;
};

}  // namespace hx::forms
