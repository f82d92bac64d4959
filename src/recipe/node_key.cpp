// SPDX-License-Identifier: MIT
#include "recipe/node_key.h"

#include <array>
#include <charconv>

#include "project/schema.h"

namespace hx::recipe {

namespace schema = project::schema;

namespace {

constexpr std::size_t prefixLength = 4;
constexpr std::string_view recipeImage = "icoRcpRecipe";

struct NodeKind {
    std::string_view prefix;
    std::string_view image;
    std::int32_t helpContext;
};

constexpr std::array<NodeKind, 3> nodeKinds = {{
    {prefixRoot, recipeImage, 100001},
    {prefixRecipe, recipeImage, 100019},
    {prefixSubRecipes, recipeImage, 100020},
}};

const NodeKind* kindOf(std::string_view key) noexcept {
    for (const NodeKind& kind : nodeKinds) {
        if (kind.prefix == KeyPrefix(key)) return &kind;
    }
    return nullptr;
}

}  // namespace

std::string_view KeyPrefix(std::string_view key) noexcept { return key.substr(0, prefixLength); }

bool isRecipeKey(std::string_view key) noexcept {
    const std::string_view type = KeyPrefix(key);
    return type == prefixSubRecipes || type == prefixRecipe || type == prefixRoot;
}

std::int32_t KeyId(std::string_view key) noexcept {
    if (key.size() <= prefixLength) return schema::noRecipe;
    // from_chars would take a minus sign; a key has none.
    if (key[prefixLength] == '-') return 0;
    std::int32_t id = 0;
    const auto [end, failure] = std::from_chars(key.data() + prefixLength, key.data() + key.size(), id);
    return failure == std::errc::result_out_of_range ? schema::noRecipe : id;
}

std::string_view KeyImage(std::string_view key) noexcept {
    const NodeKind* kind = kindOf(key);
    return kind != nullptr ? kind->image : std::string_view();
}

std::int32_t KeyHelpContext(std::string_view key) noexcept {
    const NodeKind* kind = kindOf(key);
    return kind != nullptr ? kind->helpContext : 0;
}

std::string makeKey(std::string_view prefix, std::int32_t id) { return std::string(prefix) + std::to_string(id); }

}  // namespace hx::recipe
