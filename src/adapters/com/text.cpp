// SPDX-License-Identifier: MIT
#include "adapters/com/text.h"

#include <new>
#include <oleauto.h>

namespace hx::com {

std::string toUtf8(std::wstring_view text) {
    const auto length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

std::wstring toWide(std::string_view text) {
    const auto length = static_cast<int>(text.size());
    const int size = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), size);
    return wide;
}

std::string textOf(BSTR text) { return toUtf8({text, SysStringLen(text)}); }

BSTR makeBstr(std::string_view text) {
    const std::wstring wide = toWide(text);
    BSTR made = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    return made != nullptr ? made : throw std::bad_alloc();
}

}  // namespace hx::com
