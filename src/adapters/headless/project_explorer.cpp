// SPDX-License-Identifier: MIT
#include "adapters/headless/project_explorer.h"

#include "automation/convert.h"
#include "automation/dispatch.h"
#include "automation/error.h"

namespace hx::headless {

using hosting::NodeTree;

void ProjectExplorer::takeClipboardImage(std::string_view key) {
    const forms::Picture picture = clipboard_.picture();
    if (picture.empty()) throw automation::Error(automation::errFail, "The clipboard holds no picture");
    images_.add(std::string(key), picture);
}

void ProjectExplorer::addNode(const host::NewNode& node) { tree_.add(node); }

void ProjectExplorer::removeNode(std::string_view key) {
    tree_.remove(require(key));
    std::erase_if(expanded_, [this](const auto& entry) { return tree_.find(entry.first) == NodeTree::none; });
    if (tree_.find(selected_) == NodeTree::none) selected_.clear();
}

void ProjectExplorer::setNodeProperty(std::string_view key, std::int32_t property, const automation::Variant& value) {
    const NodeTree::Id id = require(key);
    switch (property) {
        case host::node_property::caption: tree_.setCaption(id, automation::toText(value)); break;
        case host::node_property::expanded: expanded_[std::string(key)] = automation::toBoolean(value); break;
        default: automation::throwBadIndex("Node properties", automation::Variant(property));
    }
}

host::NodeEvent ProjectExplorer::selectedNode() const {
    return selected_.empty() ? host::NodeEvent() : eventOf(selected_);
}

bool ProjectExplorer::isExpanded(std::string_view key) const {
    (void)require(key);
    const auto found = expanded_.find(key);
    return found != expanded_.end() && found->second;
}

host::NodeEvent ProjectExplorer::eventOf(std::string_view key) const {
    return {project_, std::string(key), std::string(tree_.caption(require(key)))};
}

void ProjectExplorer::select(std::string_view key) {
    if (!key.empty()) (void)require(key);
    selected_ = key;
}

NodeTree::Id ProjectExplorer::require(std::string_view key) const {
    const NodeTree::Id id = tree_.find(key);
    if (id == NodeTree::none) automation::throwBadIndex("Explorer", automation::Variant(key));
    return id;
}

}  // namespace hx::headless
