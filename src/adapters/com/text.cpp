// SPDX-License-Identifier: MIT
#include "adapters/com/text.h"

#include <new>
#include <oleauto.h>

namespace hx::com {

std::string textOf(BSTR text) { return toUtf8({text, SysStringLen(text)}); }

BSTR makeBstr(std::string_view text) {
    const std::wstring wide = toWide(text);
    BSTR made = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    return made != nullptr ? made : throw std::bad_alloc();
}

Text::~Text() { SysFreeString(text_); }

}  // namespace hx::com
