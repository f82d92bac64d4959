// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "adapters/jet/bytes.h"

/// Texts stand in the file in UTF-16, or packed: after FF FE the lower bytes alone, until a 00 changes to whole units
/// and back. A surrogate that stands alone becomes three bytes as if it were a character, and itself again.
namespace hx::jet {

/// Of UTF-16; half a unit at the end is left out.
[[nodiscard]] std::string utf8Of(Bytes units);
void appendUtf8(std::string& to, Bytes units);
/// What belongs to no character is taken for Windows-1252.
void appendUtf16(Buffer& to, std::string_view text);

/// The text of a column, packed or not.
void appendText(std::string& to, Bytes stored);
/// The same as UTF-16.
void appendUnits(Buffer& to, Bytes stored);
/// The text as a column stores it. A text of more units than `mostPacked` is not packed.
inline constexpr std::size_t mostPacked = 1024;
void storeText(Buffer& to, std::string_view text, bool packs);

}  // namespace hx::jet
