// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/qt/wording.h"
#include "forms/font.h"

class QWidget;

namespace hx::qt {

/// Lets the user choose a font over `owner`; false when cancelled. What the user leaves as it is keeps its value, also
/// a family that the system only substitutes and a size between those that are listed.
[[nodiscard]] bool chooseFont(forms::Font::Values& font, const Wording& wording, QWidget* owner);

}  // namespace hx::qt
