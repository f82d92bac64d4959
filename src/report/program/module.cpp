// SPDX-License-Identifier: MIT
#include "host/module.h"

#include <type_traits>

#include "automation/text.h"
#include "report/connect.h"
#include "report/preview/qt_viewer.h"

/// The module's entry point (host::ModuleEntry).
extern "C" void hxCreateObject(std::string_view programId, const hx::host::Services& services,
                               hx::automation::ObjectRef& object) {
    object.reset();
    try {
        if (!hx::automation::equalIgnoreCase(programId, hx::report::connectProgramId)) return;
        object = std::make_shared<hx::report::Connect>(services, std::make_unique<hx::report::QtViewer>(services));
    } catch (...) {
        // An empty object tells the studio that there is none; an error must not cross the module's border.
        object.reset();
    }
}

static_assert(std::is_convertible_v<decltype(&hxCreateObject), hx::host::ModuleEntry>);
