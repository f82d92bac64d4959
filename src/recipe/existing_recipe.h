// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>

#include "ado/connection.h"
#include "resources/resource_table.h"

namespace hx::recipe {

/// Throws dbErrDeletedRow, in words for the user, when the recipe is not there (any more). In a transaction it stays
/// there until the end of it.
void requireRecipe(const std::shared_ptr<ado::Connection>& connection, std::int32_t id,
                   const resources::ResourceTable& texts);

}  // namespace hx::recipe
