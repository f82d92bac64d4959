// SPDX-License-Identifier: MIT
#pragma once

#include "forms/captioned.h"

namespace hx::forms {

class Frame : public Captioned {
  public:
    using Captioned::Captioned;
    [[nodiscard]] const automation::MemberTable& members() const override;
};

}  // namespace hx::forms
