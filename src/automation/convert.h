// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "automation/variant.h"

namespace hx::automation {

/// How a locale writes numbers, without grouping. Any separator but "," is written as a point, to be read back.
struct NumberFormat {
    std::string decimalPoint = ".";
};

/// The shortest text that reads back to this value: whole numbers without decimals, "1E+20" from 15 digits on.
[[nodiscard]] std::string numberToText(double value, const NumberFormat& format = {});

/// Any value as text: "" for empty, null and object, "True"/"False", numbers in `format`.
[[nodiscard]] std::string toText(const Variant& value, const NumberFormat& format = {});

/// The longest leading part of `text`, blanks and tabs before it left out, that reads as a number with a point as
/// decimal separator, whatever the locale; 0 when there is none ("12abc" is 12, "1,2" and "1 2" are 1, "abc" is 0).
[[nodiscard]] double leadingNumber(std::string_view text);

/// The whole text as a number (point as decimal separator, blanks around it allowed); throws errTypeMismatch.
[[nodiscard]] double wholeNumber(std::string_view text);

/// Rounds half to even; throws errOverflow outside the range.
[[nodiscard]] std::int16_t roundToInt16(double value);
[[nodiscard]] std::int32_t roundToInt32(double value);

// OLE Automation's coercions: numbers among each other, true = -1, numeric text, empty as 0, "" or false.
// Null, an object or text that is no number throws errTypeMismatch; a number out of range errOverflow.
[[nodiscard]] bool toBoolean(const Variant& value);
[[nodiscard]] std::int16_t toInt16(const Variant& value);
[[nodiscard]] std::int32_t toInt32(const Variant& value);
[[nodiscard]] double toDouble(const Variant& value);

}  // namespace hx::automation
