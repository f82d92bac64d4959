#include "macros/studio.h"

#include "automation/error.h"

namespace hx::macros {

namespace {

[[noreturn]] void failWithoutProject() { throw automation::Error(automation::errFail, "No project is open"); }

}  // namespace

Node nodeOf(const hosting::NodeTree& tree, const std::string& key) {
    const auto id = tree.find(key);
    return {key, std::string(tree.key(tree.parent(id))), std::string(tree.caption(id)), std::string(tree.image(id)),
            std::string(tree.tag(id))};
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
