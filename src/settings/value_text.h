// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "automation/convert.h"
#include "automation/variant.h"

namespace hx::settings {

/// A value as it stands in the settings file, read without knowing its kind: "True" and "False" (also all capitals or
/// all small) are booleans, a text that begins with a digit is a double ("," or "." before the decimals, blanks within
/// it skipped, what follows the number dropped), all else is text. Leading blanks do not count. A number too large for
/// a double throws errOverflow.
[[nodiscard]] automation::Variant TextToValue(std::string_view text);

/// Text unchanged, "True" or "False", or the number as the user's locale writes it.
[[nodiscard]] std::string ValueToText(const automation::Variant& value, const automation::NumberFormat& format);

}  // namespace hx::settings
