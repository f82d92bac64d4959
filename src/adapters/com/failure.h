// SPDX-License-Identifier: MIT
#pragma once

#include <oaidl.h>
#include <windows.h>

#include "automation/error.h"

namespace hx::com {

/// Runs what others call, which no exception may leave.
template <class Action>
HRESULT guarded(const Action& action) noexcept {
    try {
        return action();
    } catch (...) {
        return automation::caughtError().number();
    }
}

/// For a catch handler: the error as the caller is told it; the language is that of his locale.
[[nodiscard]] HRESULT tellCaughtError(EXCEPINFO* exception, LCID locale) noexcept;

/// Frees what a call has said of its failure.
void clear(EXCEPINFO& exception) noexcept;

/// Throws automation::Error for a call that has failed: with the number and the description that the object called
/// gives, else with those of the system.
[[noreturn]] void fail(HRESULT result, EXCEPINFO* exception = nullptr);
inline void require(HRESULT result) {
    if (FAILED(result)) fail(result);
}

}  // namespace hx::com
