// SPDX-License-Identifier: MIT
// What COM asks a library that is a server.
#include "server/exports.h"

namespace {

constexpr char own = 0;  // a place in this library

/// Null when there is no memory for it.
hx::com::Server* server() noexcept {
    try {
        return &hx::server::serverOf(hx::com::moduleOf(&own));
    } catch (...) {
        return nullptr;
    }
}

template <class Answer>
HRESULT ask(const Answer& answer) noexcept {
    hx::com::Server* const asked = server();
    return asked != nullptr ? answer(*asked) : E_OUTOFMEMORY;
}

}  // namespace

STDAPI DllGetClassObject(REFCLSID id, REFIID iid, void** object) {
    return ask([&](hx::com::Server& server) { return server.getClassObject(id, iid, object); });
}
STDAPI DllCanUnloadNow() {
    return ask([](const hx::com::Server& server) { return server.canUnloadNow(); });
}
STDAPI DllRegisterServer() {
    return ask([](hx::com::Server& server) { return server.registerServer(); });
}
STDAPI DllUnregisterServer() {
    return ask([](hx::com::Server& server) { return server.unregisterServer(); });
}
STDAPI DllInstall(BOOL install, LPCWSTR command) {
    return ask([&](hx::com::Server& server) { return server.install(install != FALSE, command); });
}
