// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace hx::automation {

/// A character of a UTF-8 text: its code point and how many bytes it takes. 0 bytes: none begins there.
struct Utf8Character {
    char32_t point = 0;
    std::size_t length = 0;
};

/// What `decodeUtf8` gives beyond ASCII.
[[nodiscard]] Utf8Character decodeUtf8Sequence(std::string_view text, std::size_t at);

/// The character that begins at `at`, which lies within the text. Overlong forms, surrogates, what lies beyond U+10FFFF
/// and what is cut off at the end are none.
[[nodiscard]] inline Utf8Character decodeUtf8(std::string_view text, std::size_t at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    return lead < 0x80 ? Utf8Character{lead, 1} : decodeUtf8Sequence(text, at);
}

/// Where the first byte stands that belongs to no character; npos when the text is UTF-8.
[[nodiscard]] std::size_t findNoUtf8(std::string_view text);
[[nodiscard]] inline bool isUtf8(std::string_view text) { return findNoUtf8(text) == std::string_view::npos; }

/// Whether the last bytes of a text may be the beginning of a character that the next piece completes; how many they
/// are, 0 to 3.
[[nodiscard]] std::size_t unfinishedUtf8(std::string_view text);

/// The code point, which is one of Unicode's.
void appendUtf8(std::string& text, char32_t point);

}  // namespace hx::automation
