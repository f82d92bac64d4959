// SPDX-License-Identifier: MIT
// The recipe editor's library as hosts in any language load it.
#include "server/connect_server.h"
#include "server/exports.h"
#include "server/toolkit/make_toolkit_view.h"

namespace hx::server {

com::Server& serverOf(HMODULE library) {
    static ConnectServer only(library, [library] { return makeToolkitView(library); });
    return only.com();
}

}  // namespace hx::server
