// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace hx::hosting {

/// What is no text in one becomes U+FFFD in the other.
[[nodiscard]] std::string toUtf8(std::wstring_view text);
[[nodiscard]] std::wstring toWide(std::string_view text);

}  // namespace hx::hosting
