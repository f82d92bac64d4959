// SPDX-License-Identifier: MIT
#include "resources/help.h"

namespace hx::resources {

void Help::SetHelpFile() {
    const std::string common = services_.registry.readString(host::registry_keys::tarnwell, "Common");
    const host::PathStyle& paths = services_.paths;
    file_ = paths.join(paths.join(common, "helpfiles"), "Rezeptsystem.chm");
}

void Help::ShowHelp(forms::WindowHandle owner, std::int32_t context) {
    services_.help.showContext(owner, file_, context);
}

void Help::CloseHelp() { services_.help.closeAll(); }

}  // namespace hx::resources
