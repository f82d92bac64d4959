// SPDX-License-Identifier: MIT
#include "cli/json_output.h"

namespace hx::cli {

std::string jsonLine(const Json& value) {
    return visibleJson(value.dump(-1, ' ', false, Json::error_handler_t::replace));
}

Json recipeObject(const project::RecipeEntry& recipe) { return {{"id", recipe.id}, {"name", recipe.name}}; }

}  // namespace hx::cli
