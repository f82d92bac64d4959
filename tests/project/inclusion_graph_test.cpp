// SPDX-License-Identifier: MIT
#include "project/inclusion_graph.h"

#include <gtest/gtest.h>
#include <string>

namespace hx::project {
namespace {

using Lines = std::vector<std::string>;
using Children = std::vector<std::vector<std::size_t>>;

constexpr std::size_t missing = InclusionGraph::noRecipe;
constexpr InclusionGraph::TreeLimits wide{.depth = 24};

/// Recipes "A" (0), "B" (1), ... with the numbers of their sub-recipes.
InclusionGraph graphOf(const Children& children) {
    std::vector<InclusionGraph::Inclusion> inclusions;
    for (std::size_t parent = 0; parent < children.size(); ++parent) {
        for (const std::size_t child : children[parent]) inclusions.push_back({parent, child});
    }
    return {children.size(), std::move(inclusions)};
}

std::string nameOf(std::size_t recipe) { return {static_cast<char>('A' + recipe)}; }

std::string markText(BranchMark mark) {
    switch (mark) {
        case BranchMark::none: return "";
        case BranchMark::cycle: return " cycle";
        case BranchMark::missing: return " missing";
        case BranchMark::repeated: return " repeated";
        case BranchMark::deeper: return " deeper";
    }
    return " ?";
}

/// "--C cycle": the depth, the name, the mark.
Lines linesOf(const Tree& tree) {
    Lines lines;
    for (const Branch& branch : tree.branches) {
        lines.push_back(std::string(branch.depth, '-') + (branch.recipe ? nameOf(*branch.recipe) : "?") +
                        markText(branch.mark));
    }
    return lines;
}

Lines treeOf(const Children& children) { return linesOf(graphOf(children).tree(0, wide)); }

TEST(SubRecipeTree, ShowsSubRecipesInTheirOrderWithTheirOwnBelow) {
    EXPECT_EQ(treeOf({{2, 1}, {3}, {}, {}}), (Lines{"C", "B", "-D"}));
    EXPECT_EQ(treeOf({{}, {}}), Lines{});
}

TEST(SubRecipeTree, MarksARecipeThatIncludesItself) { EXPECT_EQ(treeOf({{0, 1}, {}}), (Lines{"A cycle", "B"})); }

TEST(SubRecipeTree, MarksACycleThroughOthers) {
    EXPECT_EQ(treeOf({{1}, {2}, {0}}), (Lines{"B", "-C", "--A cycle"}));
    EXPECT_EQ(treeOf({{1}, {2}, {1}}), (Lines{"B", "-C", "--B cycle"}));
}

TEST(SubRecipeTree, MarksAMissingSubRecipe) {
    EXPECT_EQ(treeOf({{1, missing}, {missing}}), (Lines{"B", "-? missing", "? missing"}));
}

TEST(SubRecipeTree, ShowsWhatIsBelowARecipeOnlyOnce) {
    EXPECT_EQ(treeOf({{1, 2}, {3}, {3}, {4}, {}}), (Lines{"B", "-D", "--E", "C", "-D repeated"}));
}

TEST(SubRecipeTree, ARecipeWithoutSubRecipesMayStandInItAnyNumberOfTimes) {
    EXPECT_EQ(treeOf({{1, 1, 2}, {}, {1}}), (Lines{"B", "B", "C", "-B"}));
}

TEST(SubRecipeTree, KnowsTheInclusionOfEachBranchAndWhichIsTheLastOfItsRecipe) {
    // In the order of a table of members: the recipes in any order, and one member that belongs to none.
    const InclusionGraph graph(5, {{1, 2}, {0, 1}, {missing, 4}, {1, 3}, {0, 4}});
    const Tree tree = graph.tree(0, wide);
    ASSERT_EQ(linesOf(tree), (Lines{"B", "-C", "-D", "E"}));
    const std::vector<std::size_t> inclusions = {1, 0, 3, 4};
    const std::vector<bool> last = {false, false, true, true};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(tree.branches[i].inclusion, inclusions[i]) << i;
        EXPECT_EQ(tree.branches[i].last, last[i]) << i;
    }
}

/// Each recipe includes the next.
InclusionGraph chain(std::size_t length) {
    std::vector<InclusionGraph::Inclusion> inclusions;
    for (std::size_t i = 0; i + 1 < length; ++i) inclusions.push_back({i, i + 1});
    return {length, std::move(inclusions)};
}

TEST(SubRecipeTree, EndsAtADepthThatCanBeShown) {
    const Tree tree = chain(100'000).tree(0, {.depth = 24});
    ASSERT_EQ(tree.branches.size(), 24U);
    EXPECT_EQ(tree.branches.back().mark, BranchMark::deeper);
    EXPECT_FALSE(tree.cut);
}

TEST(SubRecipeTree, EndsWhenItWouldBecomeTooLong) {
    const InclusionGraph full = graphOf({std::vector<std::size_t>(1000, 1), {}});
    EXPECT_FALSE(full.tree(0, {.depth = 24, .branches = 1000}).cut);
    const Tree cut = full.tree(0, {.depth = 24, .branches = 999});
    EXPECT_EQ(cut.branches.size(), 999U);
    EXPECT_TRUE(cut.cut);
    EXPECT_EQ(full.tree(0, wide).branches.size(), 1000U);
}

TEST(SubRecipeTree, WithoutASubRecipeIsEmptyAndWhole) {
    const Tree tree = chain(1).tree(0, wide);
    EXPECT_TRUE(tree.branches.empty());
    EXPECT_FALSE(tree.cut);
}

/// "B", "C>A": used in B, and in C through A.
Lines usesOf(const Children& children, const std::vector<std::size_t>& recipes) {
    const Uses uses = graphOf(children).uses(recipes);
    Lines lines;
    for (const Use& use : uses.direct()) lines.push_back(nameOf(use.recipe));
    for (const Use& use : uses.indirect()) lines.push_back(nameOf(use.recipe) + ">" + nameOf(use.through));
    return lines;
}

TEST(RecipeUses, NameTheRecipesThatIncludeItAndThoseThatIncludeThem) {
    EXPECT_EQ(usesOf({{1}, {2}, {}, {1, 2, 2}}, {2}), (Lines{"B", "D", "A>B"}));
    EXPECT_EQ(usesOf({{1}, {2}, {}}, {0}), Lines{});
}

TEST(RecipeUses, OfSeveralRecipesAreFoundOnce) {
    EXPECT_EQ(usesOf({{1, 3}, {2}, {}, {}, {0}}, {2, 3}), (Lines{"B", "A", "E>A"}));
    EXPECT_EQ(usesOf({{1}, {2}, {}}, {}), Lines{});
}

TEST(RecipeUses, ARecipeInACycleIsUsedInItself) {
    EXPECT_EQ(usesOf({{0}}, {0}), Lines{"A"});
    EXPECT_EQ(usesOf({{1}, {0}}, {0}), (Lines{"B", "A>B"}));
}

TEST(RecipeUses, EndWhenThereAreTooMany) {
    const Uses uses = chain(5000).uses({4999}, 1000);
    EXPECT_EQ(uses.direct().size(), 1U);
    EXPECT_EQ(uses.indirect().size(), 1000U);
    EXPECT_TRUE(uses.cut);
    EXPECT_FALSE(chain(1002).uses({1001}, 1000).cut);
    const Uses direct = chain(3).uses({2}, 0);
    EXPECT_EQ(direct.list.size(), 1U);
    EXPECT_TRUE(direct.cut);
}

TEST(RecipeUses, OfARecipeThatNobodyIncludesAreNoneAndWhole) {
    const Uses uses = chain(1).uses({0}, 1000);
    EXPECT_TRUE(uses.list.empty());
    EXPECT_FALSE(uses.cut);
}

TEST(RecipeUses, AllThatUseItDirectlyAreFound) {
    Children children(2000, {0});
    children[0] = {};
    const Uses uses = graphOf(children).uses({0}, 1000);
    EXPECT_EQ(uses.direct().size(), 1999U);
    EXPECT_FALSE(uses.cut);
}

TEST(RecipeCycles, LeaveOutWhatDoesNotExist) {
    const InclusionGraph graph(3, {{1, 2}, {missing, 1}, {0, missing}, {2, 1}});
    EXPECT_EQ(graph.cycles().ways, (std::vector<std::vector<std::size_t>>{{1, 2}}));
    EXPECT_EQ(graph.cycles().nodes, (std::vector<bool>{false, true, true}));
}

}  // namespace
}  // namespace hx::project
