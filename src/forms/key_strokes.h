// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "forms/input.h"

namespace hx::forms {

/// A key as the keyboard sends it: virtual key code (0 for one that types a character alone), shift state, and the
/// character that it types (0 for none).
struct KeyStroke {
    std::int16_t code = 0;
    std::int16_t shift = 0;
    std::int32_t character = 0;
    friend bool operator==(const KeyStroke&, const KeyStroke&) = default;
};

/// The keys that Screen::sendKeys types: characters, names in braces ("{ENTER}", "{DEL}" or "{DELETE}", "{F1}" to
/// "{F24}", ...), and the prefixes "+" Shift, "^" Ctrl, "%" Alt for the next key. Throws errFail for a name that there
/// is not.
[[nodiscard]] std::vector<KeyStroke> keyStrokes(std::string_view keys);

}  // namespace hx::forms
