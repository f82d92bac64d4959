// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "forms/control.h"

namespace hx::forms {

/// A control with a caption; "&" marks the mnemonic, "&&" is one "&".
class Captioned : public Control {
  public:
    using Control::Control;
    [[nodiscard]] const std::string& caption() const noexcept { return caption_; }
    void setCaption(const std::string& caption) { assign(caption_, caption, "Caption"); }
    [[nodiscard]] static const automation::MemberTable& captionedMembers();

  private:
    std::string caption_;
};

}  // namespace hx::forms
