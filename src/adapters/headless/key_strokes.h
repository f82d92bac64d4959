#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "forms/form.h"

namespace hx::headless {

/// A key as the keyboard sends it: virtual key code, shift state, and the character that it types (0 for none).
struct KeyStroke {
    std::int16_t code = 0;
    std::int16_t shift = 0;
    std::int32_t character = 0;
    friend bool operator==(const KeyStroke&, const KeyStroke&) = default;
};

/// "{F1}", "{ENTER}", "{DEL}", plain letters and digits, and the prefixes "+" Shift, "^" Ctrl, "%" Alt for the next
/// key. Throws errFail for a name that it does not know.
[[nodiscard]] std::vector<KeyStroke> keyStrokes(std::string_view keys);

/// Types a key: into the form when it previews keys, then into the control with the keyboard; what nobody swallowed
/// presses the default button (Enter) or the cancel button (Esc).
void type(forms::Form& form, const KeyStroke& stroke);

}  // namespace hx::headless
