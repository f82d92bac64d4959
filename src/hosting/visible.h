// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace hx::hosting {

/// Text for a terminal, in one line: what it would obey instead of showing it, or shows nothing of (control characters,
/// marks of writing direction, joiners), and what is no UTF-8, byte by byte as \x0A.
[[nodiscard]] std::string visible(std::string_view text);
/// The same in quotation marks, as the command line prints names.
[[nodiscard]] std::string inQuotes(std::string_view text);
/// The same line by line, with tabs.
[[nodiscard]] std::string visibleLines(std::string_view text);
/// JSON in UTF-8, with such characters as \u202E: it means the same.
[[nodiscard]] std::string visibleJson(std::string_view json);

}  // namespace hx::hosting
