// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "forms/screen.h"

namespace hx::forms::message {

/// The buttons of a message box style, in order.
[[nodiscard]] std::vector<Answer> buttonsOf(std::int32_t style);
/// The button that Enter presses.
[[nodiscard]] Answer defaultButtonOf(std::int32_t style);
/// What closing the box by its frame or Esc answers: cancel, no or ok, whichever there is, in this order.
[[nodiscard]] Answer escapeAnswerOf(std::int32_t style);
/// "ok", "cancel", "yes", "no".
[[nodiscard]] std::string_view nameOf(Answer answer) noexcept;

}  // namespace hx::forms::message
