// SPDX-License-Identifier: MIT
#include "macros/studio.h"

#include <limits>

#include "automation/error.h"
#include "host/project_file.h"

namespace hx::macros {

namespace {

[[noreturn]] void failWithoutProject() { throw automation::Error(automation::errFail, "No project is open"); }

}  // namespace

std::vector<Node> nodesBelow(const hosting::NodeTree& tree, std::string_view top) {
    std::vector<Node> list;
    for (const std::string& key : tree.childKeys(top, std::numeric_limits<std::int32_t>::max())) {
        const auto id = tree.find(key);
        const std::string_view parent = tree.key(tree.parent(id));
        list.push_back({key, std::string(parent == top ? "" : parent), std::string(tree.caption(id)),
                        std::string(tree.image(id)), std::string(tree.tag(id))});
    }
    return list;
}

std::string Studio::fileOf(const std::string& pathOrName) {
    if (host::isProjectFile(pathOrName)) return pathOf(pathOrName);
    const std::string folder = registry().folderOf(pathOrName);
    if (folder.empty()) throw automation::Error(automation::errFail, "No project '" + pathOrName + "' is known");
    return pathOf(folder + "/" + pathOrName + std::string(host::projectExtension));
}

std::string Studio::requireFile() const {
    std::string open = file();
    if (open.empty()) failWithoutProject();
    return open;
}

std::shared_ptr<host::CHX4Extensibility> Studio::requireAddIn() const {
    auto open = addIn();
    if (!open) failWithoutProject();
    return open;
}

}  // namespace hx::macros
