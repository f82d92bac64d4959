// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>
#include <wtypes.h>

#include "hosting/windows_text.h"

namespace hx::com {

using hosting::toUtf8;
using hosting::toWide;

/// COM's text, which may hold zeros; a null pointer is an empty one.
[[nodiscard]] std::string textOf(BSTR text);
/// For the caller to free; throws std::bad_alloc.
[[nodiscard]] BSTR makeBstr(std::string_view text);

/// A text for one call.
class Text {
  public:
    explicit Text(std::string_view text) : text_(makeBstr(text)) {}
    ~Text();
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;
    operator BSTR() const { return text_; }

  private:
    BSTR text_;
};

}  // namespace hx::com
