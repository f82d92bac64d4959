// SPDX-License-Identifier: MIT
#pragma once

#include "addin/image_list.h"
#include "ado/recordset.h"
#include "host/project_explorer.h"
#include "host/services.h"
#include "resources/resource_table.h"

/// The recipe branch of the explorer: the module MSurfingTree.
namespace hx::addin {

/// Hands the node images to the explorer and adds the root of the recipe branch. An error is shown and leaves `ok`
/// false.
void InitTreeView(const host::Services& services, host::ProjectExplorer& explorer,
                  const resources::ResourceTable& texts, const FImageList& images, bool& ok);

/// Adds the nodes of every recipe under the root, in the order of the recordset, and closes it. Errors reach the
/// caller; the nodes that were added before stay.
void addRecipeNodes(ado::Recordset& recipes, host::ProjectExplorer& explorer, const resources::ResourceTable& texts);

/// Removes every node below the root.
void removeRecipeNodes(host::ProjectExplorer& explorer);

}  // namespace hx::addin
