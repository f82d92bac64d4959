// SPDX-License-Identifier: MIT
#pragma once

#include <oaidl.h>
#include <oleauto.h>

namespace hx::com {

/// What a call has put into a VARIANT, cleared afterwards.
struct Cleared : VARIANT {
    Cleared() : VARIANT{} {}
    ~Cleared() { VariantClear(this); }
    Cleared(const Cleared&) = delete;
    Cleared& operator=(const Cleared&) = delete;
};

}  // namespace hx::com
