// SPDX-License-Identifier: MIT
#include "recipe/recipe_nodes.h"

#include <gtest/gtest.h>
#include <limits>

namespace hx::recipe {
namespace {

/// Writes down what it is asked for.
class NotingExplorer : public host::ProjectExplorer {
  public:
    [[nodiscard]] forms::WindowHandle hostWindow() const override { return 0; }
    void takeClipboardImage(std::string_view) override {}
    void addNode(const host::NewNode& node) override {
        notes += "add " + std::string(node.parent) + "/" + std::string(node.key) + " '" + std::string(node.caption) +
                 "' '" + std::string(node.tag) + "' " + std::string(node.image) + "\n";
        flagged = flagged || node.options[0] || node.options[1] || node.options[2] || node.number != 0;
    }
    void removeNode(std::string_view key) override { notes += "remove " + std::string(key) + "\n"; }
    [[nodiscard]] std::vector<std::string> childKeys(std::string_view, std::int32_t) const override { return {}; }
    void setNodeProperty(std::string_view key, std::int32_t property, const automation::Variant& value) override {
        notes += "set " + std::string(key) + " " + std::to_string(property) + " " + value.asString() + "\n";
    }
    [[nodiscard]] host::NodeEvent selectedNode() const override { return {}; }
    void activate() override {}

    std::string notes;
    bool flagged = false;
};

struct Nodes : testing::Test {
    NotingExplorer explorer;
    RecipeNodes nodes{explorer, "Unterrezepte"};
};

TEST_F(Nodes, ARecipeIsANodeUnderTheRootWithANodeForItsSubRecipes) {
    nodes.add(17, "Cola");
    EXPECT_EQ(explorer.notes,
              "add RCPE0/RCPR17 'Cola' '' icoRcpRecipe\n"
              "add RCPR17/RCPU17 'Unterrezepte' '' icoRcpRecipe\n");
    EXPECT_FALSE(explorer.flagged);
}

TEST_F(Nodes, TheLargestAndTheSmallestIdHaveRoomInAKey) {
    nodes.add(std::numeric_limits<std::int32_t>::max(), "a");
    nodes.add(std::numeric_limits<std::int32_t>::min(), "b");
    EXPECT_NE(explorer.notes.find("RCPE0/RCPR2147483647 "), std::string::npos);
    EXPECT_NE(explorer.notes.find("RCPR-2147483648/RCPU-2147483648 "), std::string::npos);
}

TEST_F(Nodes, ARenamedRecipeGetsAnotherCaption) {
    nodes.rename("RCPR17", "Limo");
    EXPECT_EQ(explorer.notes, "set RCPR17 1 Limo\n");
}

TEST_F(Nodes, ARecipeIsRemovedByItsOwnNode) {
    nodes.remove("RCPR17");
    EXPECT_EQ(explorer.notes, "remove RCPR17\n");
}

}  // namespace
}  // namespace hx::recipe
