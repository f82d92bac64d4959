// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <string>
#include <string_view>
#include <vector>

namespace hx::automation {

/// UTF-8 text with every letter of the Latin, Greek and Cyrillic scripts in lower case. Bytes that are not
/// UTF-8 stay as they are.
[[nodiscard]] std::string foldCase(std::string_view text);
/// The same, put behind what is there.
void appendFolded(std::string& to, std::string_view text);

/// Compares the folded texts code point by code point, without building them.
[[nodiscard]] std::strong_ordering compareIgnoreCase(std::string_view a, std::string_view b);
/// Orders names ignoring case.
struct IgnoringCase {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return compareIgnoreCase(a, b) < 0; }
};
[[nodiscard]] bool equalIgnoreCase(std::string_view a, std::string_view b);

/// Without the blanks at both ends.
[[nodiscard]] std::string_view trim(std::string_view text);

/// The parts between separators; n separators give n + 1 parts, empty ones included.
[[nodiscard]] std::vector<std::string> split(std::string_view text, char separator);

/// `text` with every `from` replaced by `to`. An empty `from` changes nothing.
[[nodiscard]] std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

/// Bytes of the Windows-1252 code page as UTF-8.
[[nodiscard]] std::string fromWindows1252(std::string_view bytes);

/// Length in characters (code points), and the first `count` of them.
[[nodiscard]] std::size_t characterCount(std::string_view text);
[[nodiscard]] std::string_view leftCharacters(std::string_view text, std::size_t count);

}  // namespace hx::automation
