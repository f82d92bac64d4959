// SPDX-License-Identifier: MIT
#include "server/toolkit/make_toolkit_view.h"

#include <QFileInfo>

#include "adapters/com/server.h"
#include "adapters/windows/system_registry.h"
#include "server/toolkit/toolkit_application.h"
#include "server/toolkit/toolkit_view.h"

namespace hx::server {

std::unique_ptr<View> makeToolkitView(HMODULE library) {
    const std::int32_t language =
        windows::SystemRegistry().readNumber(host::registry_keys::helvix, "LCID", automation::germanLcid);
    const QString folder = QFileInfo(QString::fromStdWString(com::fileOf(library))).absolutePath();
    ToolkitApplication::require(folder, automation::languageOf(language));
    return std::make_unique<ToolkitView>(language);
}

}  // namespace hx::server
