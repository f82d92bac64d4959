#pragma once

#include <string_view>
#include <vector>

#include "forms/screen.h"

namespace hx::headless {

/// The buttons of a message box style, in order.
[[nodiscard]] std::vector<forms::message::Answer> buttonsOf(std::int32_t style);
/// The button that Enter presses.
[[nodiscard]] forms::message::Answer defaultButtonOf(std::int32_t style);
/// What closing the box by its frame answers.
[[nodiscard]] forms::message::Answer escapeAnswerOf(std::int32_t style);
/// "ok", "cancel", "yes", "no".
[[nodiscard]] std::string_view nameOf(forms::message::Answer answer) noexcept;

}  // namespace hx::headless
