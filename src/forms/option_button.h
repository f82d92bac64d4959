// SPDX-License-Identifier: MIT
#pragma once

#include "forms/captioned.h"

namespace hx::forms {

/// One of a group (the option buttons of the same container). Becoming true clears the others and raises clickEvent;
/// the same value again does nothing.
class OptionButton : public Captioned {
  public:
    using Captioned::Captioned;
    [[nodiscard]] bool value() const noexcept { return value_; }
    void setValue(bool value);
    void click() {
        if (enabled()) setValue(true);
    }
    Event<> clickEvent;
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    bool value_ = false;
};

}  // namespace hx::forms
