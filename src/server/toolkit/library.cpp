// SPDX-License-Identifier: MIT
// The add-in's library as hosts in any language load it.
#include <QFileInfo>

#include "adapters/windows/system_registry.h"
#include "server/connect_server.h"
#include "server/toolkit/toolkit_application.h"
#include "server/toolkit/toolkit_view.h"

namespace hx::server {

com::Server& serverOf(HMODULE library) {
    const auto makeView = [library] {
        const std::int32_t language =
            windows::SystemRegistry().readNumber(host::registry_keys::helvix, "LCID", automation::germanLcid);
        ToolkitApplication::require(QFileInfo(QString::fromStdWString(com::fileOf(library))).absolutePath(),
                                    automation::languageOf(language));
        return std::make_unique<ToolkitView>(language);
    };
    static ConnectServer only(library, makeView);
    return only.com();
}

}  // namespace hx::server
