#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ado/connection.h"

namespace hx::editor {

/// The name of one recipe, read from the database. None when there is no such recipe, no open connection (which may be
/// null), or the name cannot be read.
[[nodiscard]] std::optional<std::string> nameOfRecipe(const std::shared_ptr<ado::Connection>& connection,
                                                      std::int32_t id) noexcept;
/// The same, but what keeps the name from being read is thrown.
[[nodiscard]] std::optional<std::string> readNameOfRecipe(const std::shared_ptr<ado::Connection>& connection,
                                                          std::int32_t id);

}  // namespace hx::editor
