// SPDX-License-Identifier: MIT
// The library under test: the server with a view whose user is the host's test.
#include "adapters/com/object.h"
#include "server/connect_server.h"
#include "user.h"

namespace hx::server {

com::Server& serverOf(HMODULE library) {
    static ConnectServer only(library, [] { return std::make_unique<ScriptedView>(); },
                              {{.id = {0x0a5d1f3e, 0x7c44, 0x4b0b, {0x8e, 0x51, 0x2d, 0x96, 0x13, 0xc7, 0x40, 0xab}},
                                .programId = "HXTest.User",
                                .description = "User of the tests",
                                .make = [] {
                                    const auto user = std::make_shared<User>(dynamic_cast<ScriptedView&>(only.view()));
                                    return com::Pointer<IUnknown>::adopt(new com::Object(user, only.com().border()));
                                }}});
    return only.com();
}

}  // namespace hx::server
