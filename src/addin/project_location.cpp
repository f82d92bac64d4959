// SPDX-License-Identifier: MIT
#include "addin/project_location.h"

#include "addin/trap.h"
#include "host/project_file.h"

namespace hx::addin {

bool ReadCurrentProject(const host::Services& services, std::string& path) {
    if (path.empty()) return false;
    if (host::isProjectFile(std::string_view(path).substr(0, path.find_last_not_of(' ') + 1))) return true;
    return trap(services.screen, "MHXSGlobalEditors: ReadCurrentProject", [&] {
        const std::string key = std::string(host::registry_keys::projects) + path;
        const std::string folder = services.registry.readString(key, "Path");
        path = services.paths.join(folder, path + std::string(host::projectExtension));
    });
}

}  // namespace hx::addin
