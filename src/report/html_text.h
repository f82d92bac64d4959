// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace hx::report {

/// A text as HTML, for the content of an element or an attribute in quotation marks. What HTML cannot hold (control
/// characters, bytes that are not UTF-8) becomes U+FFFD.
[[nodiscard]] std::string escapeHtml(std::string_view text);

}  // namespace hx::report
