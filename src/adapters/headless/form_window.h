// SPDX-License-Identifier: MIT
#pragma once

#include "forms/form.h"

namespace hx::headless {

/// Reports to a form and its bars the room that they have, as a view does: the form's size without a frame, or that of
/// the studio's area when it is maximised; the menu bar takes a line of it.
class FormWindow {
  public:
    /// The form is lent. Lengths are twips.
    FormWindow(forms::Form& form, double maximisedWidth, double maximisedHeight);

    static constexpr double menuBarHeight = 300;

  private:
    void reportArea();
    forms::Form& form_;
    double maximisedWidth_, maximisedHeight_;
    double width_ = 0, height_ = 0;
    forms::Subscription changed_;
};

}  // namespace hx::headless
