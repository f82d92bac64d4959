#include "report/recipe_graph.h"

#include <gtest/gtest.h>
#include <string>

#include "report_fixture.h"

namespace hx::report {
namespace {

using Lines = std::vector<std::string>;

/// A project of recipes "A" (1), "B" (2), ... with the IDs of their sub-recipes.
ProjectData projectOf(const std::vector<std::vector<std::int32_t>>& children) {
    std::vector<RecipeData> recipes;
    for (std::size_t i = 0; i < children.size(); ++i) {
        recipes.push_back(
            recipe(static_cast<std::int32_t>(i) + 1, std::string(1, static_cast<char>('A' + i)), children[i]));
    }
    return {std::move(recipes), 0};
}

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

/// "--C cycle": the depth, the name or #ID, the mark.
Lines linesOf(const ProjectData& data, const Tree& tree) {
    Lines lines;
    for (const Branch& branch : tree.branches) {
        const std::string name =
            branch.recipe ? data.recipes()[*branch.recipe].name : "#" + std::to_string(branch.inclusion->child);
        lines.push_back(std::string(branch.depth, '-') + name + markText(branch.mark));
    }
    return lines;
}

Lines treeOf(const std::vector<std::vector<std::int32_t>>& children, std::size_t recipe = 0) {
    const ProjectData data = projectOf(children);
    return linesOf(data, RecipeGraph(data).tree(recipe));
}

TEST(SubRecipeTree, ShowsSubRecipesInTheirOrderWithTheirOwnBelow) {
    EXPECT_EQ(treeOf({{3, 2}, {4}, {}, {}}), (Lines{"C", "B", "-D"}));
    EXPECT_EQ(treeOf({{}, {}}), Lines{});
}

TEST(SubRecipeTree, MarksARecipeThatIncludesItself) { EXPECT_EQ(treeOf({{1, 2}, {}}), (Lines{"A cycle", "B"})); }

TEST(SubRecipeTree, MarksACycleThroughOthers) {
    EXPECT_EQ(treeOf({{2}, {3}, {1}}), (Lines{"B", "-C", "--A cycle"}));
    EXPECT_EQ(treeOf({{2}, {3}, {2}}), (Lines{"B", "-C", "--B cycle"}));
}

TEST(SubRecipeTree, MarksAMissingSubRecipe) {
    EXPECT_EQ(treeOf({{2, 99}, {98}}), (Lines{"B", "-#98 missing", "#99 missing"}));
}

TEST(SubRecipeTree, ShowsWhatIsBelowARecipeOnlyOnce) {
    EXPECT_EQ(treeOf({{2, 3}, {4}, {4}, {5}, {}}), (Lines{"B", "-D", "--E", "C", "-D repeated"}));
}

TEST(SubRecipeTree, ARecipeWithoutSubRecipesMayStandInItAnyNumberOfTimes) {
    EXPECT_EQ(treeOf({{2, 2, 3}, {}, {2}}), (Lines{"B", "B", "C", "-B"}));
}

TEST(SubRecipeTree, KnowsWhichBranchesGoOn) {
    const ProjectData data = projectOf({{2, 5}, {3, 4}, {}, {}, {}});
    const Tree tree = RecipeGraph(data).tree(0);
    ASSERT_EQ(linesOf(data, tree), (Lines{"B", "-C", "-D", "E"}));
    const std::vector<bool> last = {false, false, true, true};
    const std::vector<std::uint64_t> passing = {0, 1, 1, 0};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(tree.branches[i].last, last[i]) << i;
        EXPECT_EQ(tree.branches[i].passing, passing[i]) << i;
    }
}

/// A chain: each recipe includes the next.
ProjectData chain(std::int32_t length) {
    std::vector<RecipeData> recipes;
    for (std::int32_t id = 1; id < length; ++id) recipes.push_back(recipe(id, std::to_string(id), {id + 1}));
    recipes.push_back(recipe(length, std::to_string(length)));
    return {std::move(recipes), 0};
}

TEST(SubRecipeTree, EndsAtADepthThatCanBeShown) {
    const ProjectData data = chain(100000);
    const Tree tree = RecipeGraph(data).tree(0);
    ASSERT_EQ(tree.branches.size(), RecipeGraph::deepest);
    EXPECT_EQ(tree.branches.back().mark, BranchMark::deeper);
    EXPECT_FALSE(tree.cut);
}

TEST(SubRecipeTree, EndsWithANoteWhenItWouldBecomeTooLong) {
    std::vector<RecipeData> recipes{recipe(1, "all", std::vector<std::int32_t>(5000, 2)), recipe(2, "one")};
    const ProjectData data(std::move(recipes), 0);
    const Tree tree = RecipeGraph(data).tree(0);
    EXPECT_EQ(tree.branches.size(), RecipeGraph::mostBranches);
    EXPECT_TRUE(tree.cut);
    recipes = {recipe(1, "all", std::vector<std::int32_t>(RecipeGraph::mostBranches, 2)), recipe(2, "one")};
    const ProjectData full(std::move(recipes), 0);
    EXPECT_FALSE(RecipeGraph(full).tree(0).cut);
}

/// "B", "C>A": used in B, and in C through A.
Lines usesOf(const std::vector<std::vector<std::int32_t>>& children, std::size_t recipe) {
    const ProjectData data = projectOf(children);
    const Uses uses = RecipeGraph(data).uses(recipe);
    Lines lines;
    for (const std::size_t user : uses.direct) lines.push_back(data.recipes()[user].name);
    for (const IndirectUse& use : uses.indirect) {
        lines.push_back(data.recipes()[use.recipe].name + ">" + data.recipes()[use.through].name);
    }
    return lines;
}

TEST(RecipeUses, NameTheRecipesThatIncludeItAndThoseThatIncludeThem) {
    EXPECT_EQ(usesOf({{2}, {3}, {}, {2, 3, 3}}, 2), (Lines{"B", "D", "A>B"}));
    EXPECT_EQ(usesOf({{2}, {3}, {}}, 0), Lines{});
}

TEST(RecipeUses, ARecipeInACycleIsUsedInItself) {
    EXPECT_EQ(usesOf({{1}}, 0), Lines{"A"});
    EXPECT_EQ(usesOf({{2}, {1}}, 0), (Lines{"B", "A>B"}));
}

TEST(RecipeUses, EndWithANoteWhenThereAreTooMany) {
    const ProjectData data = chain(5000);
    const std::size_t last = *data.find(5000);
    const Uses uses = RecipeGraph(data).uses(last);
    EXPECT_EQ(uses.direct.size(), 1u);
    EXPECT_EQ(uses.indirect.size(), RecipeGraph::mostIndirect);
    EXPECT_TRUE(uses.cut);
}

std::string cyclesOf(const std::vector<std::vector<std::int32_t>>& children) {
    const ProjectData data = projectOf(children);
    const RecipeGraph graph(data);
    std::string names;
    for (std::size_t i = 0; i < children.size(); ++i) {
        if (graph.inCycle(i)) names += data.recipes()[i].name;
    }
    return names;
}

TEST(RecipeCycles, HoldTheRecipesThatContainThemselvesAndNoOthers) {
    EXPECT_EQ(cyclesOf({{2}, {3}, {}}), "");
    EXPECT_EQ(cyclesOf({{1}, {1}}), "A");
    EXPECT_EQ(cyclesOf({{2}, {3}, {2}, {2}}), "BC");
    EXPECT_EQ(cyclesOf({{2}, {3}, {1}, {5}, {4}, {1, 4}}), "ABCDE");
    EXPECT_EQ(cyclesOf({{2, 3}, {4}, {4}, {}}), "");
    EXPECT_EQ(cyclesOf({{2, 3}, {4}, {1}, {2}}), "ABCD");
}

}  // namespace
}  // namespace hx::report
