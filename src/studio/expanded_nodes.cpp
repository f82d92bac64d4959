// SPDX-License-Identifier: MIT
#include "studio/expanded_nodes.h"

namespace hx::studio {

namespace {

void collectExpanded(const qt::ExplorerTree& tree, const qt::ExplorerModel& model, const QModelIndex& parent,
                     std::vector<std::string>& keys) {
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex node = model.index(row, 0, parent);
        if (!tree.isExpanded(node)) continue;
        keys.push_back(model.key(node));
        collectExpanded(tree, model, node, keys);
    }
}

}  // namespace

std::vector<std::string> expandedNodes(const qt::ExplorerTree& tree, qt::QtExplorer& explorer) {
    std::vector<std::string> keys;
    qt::ExplorerModel& model = explorer.model();
    collectExpanded(tree, model, model.find(qt::QtExplorer::projectKey), keys);
    return keys;
}

void expandNodes(const std::vector<std::string>& keys, const qt::ExplorerTree& tree, qt::QtExplorer& explorer) {
    for (const std::string& key : keys) {
        const QModelIndex node = explorer.model().find(key);
        if (node.isValid() && !tree.isExpanded(node)) explorer.showExpanded(key);
    }
}

}  // namespace hx::studio
