// SPDX-License-Identifier: MIT
#include "recipe/recipe_nodes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "recipe/node_key.h"

namespace hx::recipe {

namespace {

/// A node key in place: a branch of many recipes is built without a string for each key.
class KeyText {
  public:
    KeyText(std::string_view prefix, std::int32_t id) {
        char* digits = std::copy(prefix.begin(), prefix.end(), text_.data());
        end_ = std::to_chars(digits, text_.data() + text_.size(), id).ptr;
    }
    [[nodiscard]] std::string_view view() const {
        return {text_.data(), static_cast<std::size_t>(end_ - text_.data())};
    }

  private:
    static constexpr std::size_t longest = prefixRoot.size() + 1 + std::numeric_limits<std::int32_t>::digits10 + 1;
    std::array<char, longest> text_{};
    char* end_ = nullptr;
};

}  // namespace

void RecipeNodes::add(std::int32_t id, std::string_view name) {
    const KeyText recipe(prefixRecipe, id);
    const KeyText subRecipes(prefixSubRecipes, id);
    explorer_.addNode({.parent = rootKey, .caption = name, .key = recipe.view(), .image = recipeImage_});
    explorer_.addNode(
        {.parent = recipe.view(), .caption = subRecipesCaption_, .key = subRecipes.view(), .image = subRecipesImage_});
}

void RecipeNodes::rename(std::string_view key, std::string_view name) {
    explorer_.setNodeProperty(key, host::node_property::caption, name);
}

void RecipeNodes::remove(std::string_view key) { explorer_.removeNode(key); }

}  // namespace hx::recipe
