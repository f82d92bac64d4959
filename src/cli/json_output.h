// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/json.h"
#include "hosting/visible.h"
#include "project/reader.h"

namespace hx::cli {

using exchange::Json;
using hosting::inQuotes;
using hosting::visible;
using hosting::visibleJson;

/// On one line. Bytes that are not UTF-8 become U+FFFD.
[[nodiscard]] std::string jsonLine(const Json& value);
/// {"id": ..., "name": ...}
[[nodiscard]] Json recipeObject(const project::RecipeEntry& recipe);

}  // namespace hx::cli
