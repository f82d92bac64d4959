// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ado/connection.h"

namespace hx::editor {

/// The name of one recipe, read from the database, whose errors reach the caller. None when there is no such recipe or
/// no open connection (which may be null).
[[nodiscard]] std::optional<std::string> nameOfRecipe(const std::shared_ptr<ado::Connection>& connection,
                                                      std::int32_t id);

}  // namespace hx::editor
