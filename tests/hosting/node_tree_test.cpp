// SPDX-License-Identifier: MIT
#include "hosting/node_tree.h"

#include <gtest/gtest.h>

#include "automation/error.h"

namespace hx::hosting {
namespace {

using Keys = std::vector<std::string>;

host::NewNode node(std::string_view parent, std::string_view key) {
    return {.parent = parent, .caption = key, .key = key};
}

std::string keyOf(int recipe) { return "RCPR" + std::to_string(recipe); }

/// The root of the recipe branch with recipes 0 to count - 1, each with its node of sub-recipes.
NodeTree branch(int count) {
    NodeTree tree;
    tree.add(node("", "RCPE0"));
    for (int i = 0; i < count; ++i) {
        tree.add(node("RCPE0", keyOf(i)));
        tree.add(node(keyOf(i), "RCPU" + std::to_string(i)));
    }
    return tree;
}

TEST(NodeTree, KeepsWhatANodeWasAddedWith) {
    NodeTree tree;
    tree.add(
        {.caption = "Rezepte", .key = "RCPE0", .tag = "0", .image = "icoRcpRecipe", .options = {true, true, true}});
    const auto id = tree.add({.parent = "RCPE0",
                              .caption = "Grüner Tee",
                              .key = "RCPR17",
                              .tag = "t",
                              .image = "icoOther",
                              .options = {true, false, true},
                              .number = 5});
    EXPECT_EQ(tree.key(id), "RCPR17");
    EXPECT_EQ(tree.caption(id), "Grüner Tee");
    EXPECT_EQ(tree.tag(id), "t");
    EXPECT_EQ(tree.image(id), "icoOther");
    EXPECT_EQ(tree.image(tree.find("RCPE0")), "icoRcpRecipe");
    EXPECT_EQ(tree.image(NodeTree::root), "");
    EXPECT_EQ(tree.options(id), (std::array{true, false, true}));
    EXPECT_EQ(tree.number(id), 5);
    EXPECT_EQ(tree.parent(id), tree.find("RCPE0"));
    EXPECT_EQ(tree.parent(tree.find("RCPE0")), NodeTree::root);
    EXPECT_EQ(tree.parent(NodeTree::root), NodeTree::none);
    tree.setCaption(id, "Schwarzer Tee");
    EXPECT_EQ(tree.caption(id), "Schwarzer Tee");
}

TEST(NodeTree, KeepsTheOrderInWhichSiblingsWereAdded) {
    const NodeTree tree = branch(3);
    const auto top = tree.find("RCPE0");
    ASSERT_EQ(tree.childCount(top), 3U);
    for (std::size_t row = 0; row < 3; ++row) {
        EXPECT_EQ(tree.key(tree.child(top, row)), keyOf(static_cast<int>(row)));
        EXPECT_EQ(tree.row(tree.child(top, row)), row);
    }
    EXPECT_EQ(tree.size(), 7U);
}

TEST(NodeTree, TellsKeysThatDifferInCaseApart) {
    NodeTree tree = branch(1);
    EXPECT_EQ(tree.find("rcpr0"), NodeTree::none);
    tree.add(node("RCPE0", "rcpr0"));
    EXPECT_NE(tree.find("rcpr0"), tree.find("RCPR0"));
}

TEST(NodeTree, RefusesAKeyThatExistsAnUnknownParentAndAnEmptyKey) {
    NodeTree tree = branch(1);
    for (const host::NewNode& wrong : {node("RCPE0", "RCPR0"), node("RCPE9", "RCPR5"), node("RCPE0", "")}) {
        try {
            tree.add(wrong);
            ADD_FAILURE() << wrong.key << " under " << wrong.parent << " was added";
        } catch (const automation::Error& error) {
            EXPECT_EQ(error.number(), automation::errBadIndex);
        }
    }
    EXPECT_EQ(tree.size(), 3U);
}

TEST(NodeTree, RemovesANodeWithAllBelowIt) {
    NodeTree tree = branch(3);
    tree.remove(tree.find("RCPR1"));
    EXPECT_EQ(tree.find("RCPR1"), NodeTree::none);
    EXPECT_EQ(tree.find("RCPU1"), NodeTree::none);
    EXPECT_EQ(tree.childKeys("RCPE0", 1), (Keys{"RCPR0", "RCPR2"}));
    EXPECT_EQ(tree.row(tree.find("RCPR2")), 1U);
    tree.remove(tree.find("RCPE0"));
    EXPECT_EQ(tree.size(), 0U);
    EXPECT_EQ(tree.childCount(NodeTree::root), 0U);
}

TEST(NodeTree, TakesAKeyAgainOnceItsNodeIsGone) {
    NodeTree tree = branch(2);
    tree.remove(tree.find("RCPR0"));
    const auto id = tree.add(node("RCPE0", "RCPR0"));
    EXPECT_EQ(tree.row(id), 1U);
    EXPECT_EQ(tree.childCount(id), 0U);
}

TEST(NodeTree, KeepsItsTextsThroughManyRenamesAndRemovals) {
    constexpr int count = 200;
    NodeTree tree = branch(count);
    for (int round = 0; round < 50; ++round) {
        for (int i = 0; i < count; ++i) {
            tree.setCaption(tree.find(keyOf(i)), "Grüner Tee " + std::string(static_cast<std::size_t>(round), 'x'));
        }
        tree.remove(tree.find(keyOf(round)));
        tree.add(node("RCPE0", keyOf(round)));
    }
    const std::string longText(200'000, 'y');
    tree.setCaption(tree.find(keyOf(7)), longText);
    EXPECT_EQ(tree.caption(tree.find(keyOf(7))), longText);
    EXPECT_EQ(tree.caption(tree.find(keyOf(199))), "Grüner Tee " + std::string(49, 'x'));
    EXPECT_EQ(tree.caption(tree.find("RCPU60")), "RCPU60");
    EXPECT_EQ(tree.caption(tree.find(keyOf(49))), keyOf(49));
}

TEST(NodeTree, ListsKeysInTreeOrderDownToALevel) {
    const NodeTree tree = branch(2);
    EXPECT_EQ(tree.childKeys("RCPE0", 1), (Keys{"RCPR0", "RCPR1"}));
    EXPECT_EQ(tree.childKeys("RCPE0", 2), (Keys{"RCPR0", "RCPU0", "RCPR1", "RCPU1"}));
    EXPECT_EQ(tree.childKeys("", 1), Keys{"RCPE0"});
    EXPECT_EQ(tree.childKeys("RCPE0", 0), Keys{});
    EXPECT_EQ(tree.childKeys("RCPU1", 5), Keys{});
    EXPECT_EQ(tree.childKeys("unknown", 5), Keys{});
}

TEST(NodeTree, IsEmptyAfterClear) {
    NodeTree tree = branch(2);
    tree.remove(NodeTree::root);
    EXPECT_EQ(tree.size(), 0U);
    EXPECT_EQ(tree.find("RCPE0"), NodeTree::none);
    tree.add(node("", "RCPE0"));
    EXPECT_EQ(tree.childKeys("", 9), Keys{"RCPE0"});
}

// Rows and keys stay right whichever end the nodes are taken from, while the tree reuses their room.
TEST(NodeTree, FindsEveryNodeThatIsLeftAfterEachRemoval) {
    constexpr int count = 3000;
    NodeTree tree = branch(count);
    int first = 0;
    int last = count - 1;
    for (int step = 0; first < last; ++step) {
        const int taken = step % 3 == 0 ? last-- : first++;
        tree.remove(tree.find(keyOf(taken)));
        ASSERT_EQ(tree.find(keyOf(taken)), NodeTree::none);
        if (step % 100 != 0) continue;
        for (int i = first; i <= last; ++i) {
            const auto id = tree.find(keyOf(i));
            ASSERT_NE(id, NodeTree::none) << keyOf(i);
            ASSERT_EQ(tree.row(id), static_cast<std::size_t>(i - first));
        }
    }
    EXPECT_EQ(tree.size(), 3U);
}

TEST(NodeTree, RemovesAChainOfAHundredThousandNodes) {
    NodeTree tree;
    std::string parent;
    for (int i = 0; i < 100'000; ++i) {
        tree.add(node(parent, keyOf(i)));
        parent = keyOf(i);
    }
    EXPECT_EQ(tree.childKeys(keyOf(0), 200'000).size(), 99'999U);
    tree.remove(tree.find(keyOf(1)));
    EXPECT_EQ(tree.size(), 1U);
}

}  // namespace
}  // namespace hx::hosting
