// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// What the user does with keyboard and mouse, with Windows' virtual key codes and the shift states of OLE controls.
namespace hx::forms {

namespace key {
inline constexpr std::int16_t backspace = 8, tab = 9, enter = 13, escape = 27, space = 32, pageUp = 33, pageDown = 34,
                              end = 35, home = 36, left = 37, up = 38, right = 39, down = 40, insert = 45, del = 46,
                              c = 67, o = 79, f1 = 112, f6 = 117, f8 = 119, f9 = 120, f24 = 135;
}

namespace shift {
inline constexpr std::int16_t none = 0, shift = 1, ctrl = 2, alt = 4;
}

namespace button {
inline constexpr std::int16_t left = 1, right = 2, middle = 4;
}

/// A key going down or up. A handler swallows it by swallow(): the control and the handlers after it do nothing more.
struct KeyEvent {
    std::int16_t code = 0;
    std::int16_t shift = 0;
    [[nodiscard]] bool swallowed() const noexcept { return code == 0; }
    void swallow() noexcept { code = 0; }
    friend bool operator==(const KeyEvent&, const KeyEvent&) = default;
};

/// What a key does.
enum class KeyMove { down, up };

/// A character typed (its Unicode code point).
struct KeyPress {
    std::int32_t character = 0;
    [[nodiscard]] bool swallowed() const noexcept { return character == 0; }
    void swallow() noexcept { character = 0; }
};

/// Mouse state; x and y in twips from the upper left corner of the control.
struct MouseEvent {
    std::int16_t button = 0;
    std::int16_t shift = 0;
    double x = 0;
    double y = 0;
};

}  // namespace hx::forms
