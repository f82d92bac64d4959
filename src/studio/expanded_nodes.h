// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "adapters/qt/explorer/qt_explorer.h"

namespace hx::studio {

/// The nodes below the project's that are open in the explorer, each behind the one that it lies in.
[[nodiscard]] std::vector<std::string> expandedNodes(const qt::ExplorerTree& tree, qt::QtExplorer& explorer);
/// Opens those of them that there are and that are closed, without an event.
void expandNodes(const std::vector<std::string>& keys, const qt::ExplorerTree& tree, qt::QtExplorer& explorer);

}  // namespace hx::studio
