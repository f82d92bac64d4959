// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>

namespace hx::windows {

/// Throws automation::Error with Windows' number, as an HRESULT, and what it says of it.
[[noreturn]] void fail(DWORD number);

/// For a call that says nothing but that it has failed.
inline void require(bool done) {
    if (!done) fail(GetLastError());
}

}  // namespace hx::windows
