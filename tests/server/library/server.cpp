// SPDX-License-Identifier: MIT
// The library under test: the server with a view whose user is the host's test.
#include "adapters/com/object.h"
#include "server/connect_server.h"
#include "server/exports.h"
#include "user.h"

namespace hx::server {

namespace {

constexpr CLSID userId{0x0a5d1f3e, 0x7c44, 0x4b0b, {0x8e, 0x51, 0x2d, 0x96, 0x13, 0xc7, 0x40, 0xab}};

}  // namespace

com::Server& serverOf(HMODULE library) {
    static ScriptedUser user;
    static ConnectServer only(
        library, [] { return std::make_unique<ScriptedView>(user); },
        {{userId, "HXTest.User", "User of the tests", [] {
              return com::Pointer<IUnknown>::adopt(new com::Object(std::make_shared<User>(user), only.com().border()));
          }}});
    return only.com();
}

}  // namespace hx::server
