// SPDX-License-Identifier: MIT
#include <type_traits>

#include "addin/connect.h"
#include "automation/text.h"
#include "host/module.h"

/// The module's entry point (host::ModuleEntry).
extern "C" void hxCreateObject(std::string_view programId, const hx::host::Services& services,
                               hx::automation::ObjectRef& object) {
    object.reset();
    try {
        if (!hx::automation::equalIgnoreCase(programId, hx::addin::connectProgramId)) return;
        object = std::make_shared<hx::addin::Connect>(services);
    } catch (...) {
        // An empty object tells the studio that there is none; an error must not cross the module's border.
        object.reset();
    }
}

static_assert(std::is_convertible_v<decltype(&hxCreateObject), hx::host::ModuleEntry>);
