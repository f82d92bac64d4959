// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace hx::ado {

/// One value of a connection string ("Data Source=C:\\plant.hxs;Mode=Read|Write"): names ignore case, the last of equal
/// names counts, a value in double quotes may hold semicolons. Empty when there is none.
[[nodiscard]] std::string connectionStringValue(std::string_view connectionString, std::string_view name);

}  // namespace hx::ado
