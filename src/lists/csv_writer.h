// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace hx::lists {

/// Puts a record of CSV (RFC 4180) behind a text: a field with the delimiter, quotation marks or line breaks in it, or
/// with blanks around it, stands in quotation marks. The record ends with CRLF.
void appendCsvRecord(std::string& text, std::span<const std::string_view> fields, char delimiter);

}  // namespace hx::lists
