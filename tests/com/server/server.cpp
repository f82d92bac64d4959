// SPDX-License-Identifier: MIT
// A COM server in a library, for tests.
#include "adapters/com/server.h"

#include "adapters/com/object.h"
#include "plant.h"

namespace {

using hx::com::Server;

constexpr char own = 0;  // a place in this library

Server& server() {
    static Server only(hx::com::moduleOf(&own),
                       {{{0x0a5d1f3e, 0x7c44, 0x4b0b, {0x8e, 0x51, 0x2d, 0x96, 0x13, 0xc7, 0x40, 0xaa}},
                         "HXTest.Plant",
                         "Plant of the tests",
                         [] {
                             return hx::com::Pointer<IUnknown>::adopt(
                                 new hx::com::Object(std::make_shared<hx::com::Plant>(), only.border()));
                         }}});
    return only;
}

}  // namespace

STDAPI DllGetClassObject(REFCLSID id, REFIID iid, void** object) { return server().getClassObject(id, iid, object); }
STDAPI DllCanUnloadNow() { return server().canUnloadNow(); }
STDAPI DllRegisterServer() { return server().registerServer(); }
STDAPI DllUnregisterServer() { return server().unregisterServer(); }
STDAPI DllInstall(BOOL install, LPCWSTR command) { return server().install(install != FALSE, command); }
