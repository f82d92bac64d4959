// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

#include "forms/font.h"

namespace hx::qt {

/// A family that is not installed falls back to the one that the system names for it.
[[nodiscard]] QFont toQt(const forms::Font::Values& font);
/// Takes over what the user can choose; the character set stays.
[[nodiscard]] forms::Font::Values fromQt(const QFont& font, const forms::Font::Values& previous);

}  // namespace hx::qt
