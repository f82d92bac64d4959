// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

#include "forms/font.h"

namespace hx::qt {

/// A family that is not installed falls back to the one that the system names for it.
[[nodiscard]] QFont toQt(const forms::Font::Values& font);
/// How a window shows a font: the one that nobody has chosen, Arial with 8 points, has the size of the desktop's font.
[[nodiscard]] QFont shownFont(const forms::Font::Values& font);
/// Takes over what the user can choose; the character set stays.
[[nodiscard]] forms::Font::Values fromQt(const QFont& font, const forms::Font::Values& previous);

}  // namespace hx::qt
