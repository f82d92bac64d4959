// SPDX-License-Identifier: MIT
#pragma once

#include <dlfcn.h>

namespace hx::faults {

/// The function of this name that would be called were it not for this library.
template <class Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace hx::faults
