// SPDX-License-Identifier: MIT
#include "project/reader.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

namespace hx::project {
namespace {

TEST(RecipeNumbers, AreFoundByIdHoweverManyAreMissing) {
    constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    for (const std::vector<std::int64_t>& ids :
         {std::vector<std::int64_t>{}, {1}, {1, 2, 3}, {5, 9, 10, 11, 400}, {least, -1, 0, 7, most}}) {
        std::vector<RecipeEntry> recipes;
        for (const std::int64_t id : ids) recipes.push_back({id, ""});
        for (std::size_t i = 0; i < ids.size(); ++i) EXPECT_EQ(numberOf(recipes, ids[i]), i) << ids[i];
        for (const std::int64_t id : {least + 1, std::int64_t{-2}, std::int64_t{4}, std::int64_t{12}, most - 1}) {
            EXPECT_EQ(numberOf(recipes, id), std::nullopt) << id;
        }
    }
}

TEST(RecipeNumbers, AreFoundWhereIdsAppearTwice) {
    using Ids = std::vector<std::int64_t>;
    for (const Ids& ids : {Ids{1, 1}, Ids{1, 1, 1, 1, 3}, Ids{0, 0, 5, 9, 9, 9, 10}, Ids{1, 2, 2, 2, 2, 2, 2, 40}}) {
        std::vector<RecipeEntry> recipes;
        for (const std::int64_t id : ids) recipes.push_back({id, ""});
        for (std::int64_t id = -1; id < 45; ++id) {
            const auto first = std::ranges::find(ids, id);
            const auto place = static_cast<std::size_t>(first - ids.begin());
            EXPECT_EQ(numberOf(recipes, id), first == ids.end() ? std::nullopt : std::optional(place)) << id;
        }
    }
}

TEST(RecipeNumbers, AreFoundByNameBeforeById) {
    const std::vector<RecipeEntry> recipes = {{1, "Größe"}, {2, "4"}, {4, "Tee"}};
    EXPECT_EQ(findRecipe(recipes, "GRÖßE"), 0U);
    EXPECT_EQ(findRecipe(recipes, "4"), 1U);
    EXPECT_EQ(findRecipe(recipes, "2"), 1U);
    for (const char* text : {"", "3", " 2", "2x", "99999999999999999999"}) {
        EXPECT_EQ(findRecipe(recipes, text), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace hx::project
