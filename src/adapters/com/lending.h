// SPDX-License-Identifier: MIT
#pragma once

#include <unknwn.h>

#include "host/services.h"

namespace hx::com {

/// What was built together may lend services as they are. Two libraries of different makes do not agree about them.
inline constexpr const char* makeOfLenders = HX_MAKE " " __VERSION__;

/// What the class factory of an add-in has for a studio of the same make.
struct ILendingFactory : IClassFactory {
    /// An object that works with the services of its host, which outlive it; `direct` is the same one without COM.
    /// E_NOINTERFACE for a host of another make, or a class that takes none.
    virtual HRESULT STDMETHODCALLTYPE CreateLent(const char* make, const host::Services& services, IUnknown** object,
                                                 automation::ObjectRef& direct) = 0;
};

}  // namespace hx::com

__CRT_UUID_DECL(hx::com::ILendingFactory, 0x5d1c1b52, 0x66a0, 0x4d0e, 0x8f, 0x6b, 0x0b, 0x2c, 0x1d, 0x6c, 0x9a, 0x0a)
