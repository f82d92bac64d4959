#include "addin/project_location.h"

#include "addin/trap.h"
#include "automation/text.h"

namespace hx::addin {

namespace {

constexpr std::string_view projectExtension = ".hxs";

bool namesProjectFile(std::string_view path) {
    path = path.substr(0, path.find_last_not_of(' ') + 1);
    return path.size() >= projectExtension.size() &&
           automation::equalIgnoreCase(path.substr(path.size() - projectExtension.size()), projectExtension);
}

}  // namespace

bool ReadCurrentProject(const host::Services& services, std::string& path) {
    if (path.empty()) return false;
    if (namesProjectFile(path)) return true;
    return trap(services.screen, "MHXSGlobalEditors: ReadCurrentProject", [&] {
        const std::string key = std::string(host::registry_keys::projects) + path;
        const std::string folder = services.registry.readString(key, "Path");
        path = services.paths.join(folder, path + std::string(projectExtension));
    });
}

}  // namespace hx::addin
