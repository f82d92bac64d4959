// SPDX-License-Identifier: MIT
// A host in a scripting language.
#include "script_host.h"
#include "server_library.h"

namespace hx::com {
namespace {

TEST(AScript, UsesOurObjectsAndIsUsedByThem) {
    const Registered registered(L"hx_com_server.dll");
    EXPECT_EQ(outputOfScript(std::filesystem::path(HX_SCRIPTS_FOLDER) / "plant.js"), "done\n");
}

}  // namespace
}  // namespace hx::com
