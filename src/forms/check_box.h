// SPDX-License-Identifier: MIT
#pragma once

#include "forms/captioned.h"

namespace hx::forms {

enum class CheckState : std::int16_t { unchecked = 0, checked = 1, greyed = 2 };

/// Value 0, 1 or 2; another number throws errOverflow. click() is the user's: it toggles and raises clickEvent, as
/// does every assignment of a new value.
class CheckBox : public Captioned {
  public:
    using Captioned::Captioned;
    [[nodiscard]] CheckState value() const noexcept { return value_; }
    void setValue(CheckState value);
    void click();
    Event<> clickEvent;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    CheckState value_ = CheckState::unchecked;
};

}  // namespace hx::forms
