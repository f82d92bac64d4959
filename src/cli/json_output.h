#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "cli/content.h"
#include "cli/project_reader.h"

namespace hx::cli {

/// An object keeps the order in which its members were given.
using Json = nlohmann::ordered_json;

/// On one line. Bytes that are not UTF-8 become U+FFFD.
[[nodiscard]] std::string jsonLine(const Json& value);
/// {"id": ..., "name": ...}
[[nodiscard]] Json recipeObject(const RecipeEntry& recipe);
/// Bytes become {"hex": "00FF"}.
[[nodiscard]] Json jsonOf(const Value& value);

}  // namespace hx::cli
