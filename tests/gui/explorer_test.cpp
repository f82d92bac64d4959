// SPDX-License-Identifier: MIT
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

#include "gui/explorer_fixture.h"

namespace hx::gui {
namespace {

constexpr const char* redSquare =
    R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16"><rect width="16" height="16" fill="#ff0000"/></svg>)";

TEST_F(ExplorerTest, TakesNoMoreNodesBelowEachOtherThanItCanDraw) {
    std::string last = "RCPE0";
    const auto add = [&](int number) {
        const std::string key = "N" + std::to_string(number);
        explorer.addNode({.parent = last, .caption = key, .key = key});
        last = key;
    };
    for (int i = 0; i < 98; ++i) add(i);
    EXPECT_THROW(add(98), automation::Error);
    tree.expandAll();
    handleEvents();
    EXPECT_EQ(explorer.childKeys("RCPE0", 1000).size(), 98U);
}

TEST_F(ExplorerTest, ShowsTheProjectAndTheAddInsNodesBelowIt) {
    ASSERT_EQ(explorer.model().rowCount(), 1);
    const QModelIndex project = explorer.model().index(0, 0);
    EXPECT_EQ(project.data().toString(), "Anlage");
    EXPECT_TRUE(tree.isExpanded(project));
    EXPECT_EQ(explorer.model().index(0, 0, project).data().toString(), "Rezepte");
}

TEST_F(ExplorerTest, ABurstOfNodesIsPublishedInRangesWhenControlReturns) {
    int inserts = 0;
    QObject::connect(&explorer.model(), &QAbstractItemModel::rowsInserted, [&] { ++inserts; });
    addRecipes(1000);
    EXPECT_EQ(inserts, 0);
    EXPECT_EQ(explorer.model().rowCount(explorer.model().index(0, 0, explorer.model().index(0, 0))), 0);
    handleEvents();
    EXPECT_EQ(inserts, 1);
    EXPECT_EQ(explorer.model().rowCount(node("RCPE0")), 1000);
    EXPECT_EQ(explorer.model().rowCount(node("RCPR500")), 1);
    EXPECT_EQ(node("RCPU500").data().toString(), "Unterrezepte");
}

TEST_F(ExplorerTest, NodesGoInRangesToo) {
    addRecipes(1000);
    handleEvents();
    std::vector<std::pair<int, int>> removed;
    QObject::connect(&explorer.model(), &QAbstractItemModel::rowsRemoved,
                     [&](const QModelIndex&, int first, int last) { removed.emplace_back(first, last); });
    for (const std::string& key : explorer.childKeys("RCPE0", 1)) {
        if (key != "RCPR400") explorer.removeNode(key);
    }
    EXPECT_TRUE(removed.empty());
    EXPECT_EQ(explorer.childKeys("RCPE0", 1), std::vector<std::string>{"RCPR400"});
    EXPECT_EQ(removed, (std::vector<std::pair<int, int>>{{400, 999}, {0, 398}}));
}

TEST_F(ExplorerTest, ANodeCanComeBackRightAfterItHasGone) {
    addRecipes(3);
    handleEvents();
    explorer.removeNode("RCPR2");
    EXPECT_THROW(explorer.removeNode("RCPR2"), automation::Error);
    EXPECT_THROW(explorer.removeNode("RCPU2"), automation::Error);
    explorer.addNode({.parent = "RCPE0", .caption = "Neu", .key = "RCPR2"});
    handleEvents();
    EXPECT_EQ(explorer.childKeys("RCPE0", 1), (std::vector<std::string>{"RCPR1", "RCPR3", "RCPR2"}));
    EXPECT_EQ(node("RCPR2").row(), 2);
    EXPECT_FALSE(node("RCPU2").isValid());
}

TEST_F(ExplorerTest, ANodeThatIsRemovedBeforeItIsPublishedNeverShows) {
    addRecipes(3);
    explorer.removeNode("RCPR2");
    handleEvents();
    EXPECT_EQ(explorer.model().rowCount(node("RCPE0")), 2);
    EXPECT_EQ(node("RCPR3").row(), 1);
}

TEST_F(ExplorerTest, RefusesUnknownNodesPropertiesAndDoubledKeys) {
    EXPECT_THROW(explorer.addNode({.parent = "RCPE0", .caption = "x", .key = "RCPE0"}), automation::Error);
    EXPECT_THROW(explorer.addNode({.parent = "RCPR7", .caption = "x", .key = "RCPU7"}), automation::Error);
    EXPECT_THROW(explorer.removeNode("RCPR7"), automation::Error);
    EXPECT_THROW(explorer.setNodeProperty("RCPR7", host::node_property::caption, "x"), automation::Error);
    EXPECT_THROW(explorer.setNodeProperty("RCPE0", 99, "x"), automation::Error);
}

TEST_F(ExplorerTest, TheStudiosOwnNodeIsNotTheAddIns) {
    showTree();
    click(qt::QtExplorer::projectKey);
    EXPECT_TRUE(addIn.heard.empty());
    EXPECT_EQ(explorer.selectedNode().key, "");
}

TEST_F(ExplorerTest, ANodeThatCanBeFilledExpandsBeforeItHasNodes) {
    showTree();
    addIn.onExpand = [this](const host::NodeEvent&) { addRecipes(2); };
    EXPECT_TRUE(explorer.model().hasChildren(node("RCPE0")));
    tree.setCurrentIndex(node("RCPE0"));
    QTest::keyClick(&tree, Qt::Key_Right);
    EXPECT_EQ(addIn.heard[2], "expand Anlage RCPE0 Rezepte");
    handleEvents();
    EXPECT_TRUE(tree.visualRect(node("RCPR2")).isValid());
    explorer.setNodeProperty("RCPE0", host::node_property::expanded, false);
    EXPECT_FALSE(tree.isExpanded(node("RCPE0")));
}

TEST_F(ExplorerTest, KeysReachTheAddInAndMovingClicks) {
    addRecipes(2);
    handleEvents();
    showTree();
    tree.expand(node("RCPE0"));
    click("RCPE0");
    addIn.heard.clear();
    QTest::keyClick(&tree, Qt::Key_F8, Qt::ControlModifier);
    QTest::keyClick(&tree, Qt::Key_Down);
    QTest::keyClick(&tree, Qt::Key_Return);
    EXPECT_EQ(addIn.heard,
              (std::vector<std::string>{"key 119/2 Anlage RCPE0 Rezepte", "key up 119 Anlage RCPE0 Rezepte",
                                        "key 40/0 Anlage RCPE0 Rezepte", "click Anlage RCPR1 Rezept 1",
                                        "key up 40 Anlage RCPR1 Rezept 1", "key 13/0 Anlage RCPR1 Rezept 1",
                                        "character 13 Anlage RCPR1 Rezept 1", "double click Anlage RCPR1 Rezept 1",
                                        "key up 13 Anlage RCPR1 Rezept 1"}));
}

TEST_F(ExplorerTest, ControlCLeavesTheClipboardAlone) {
    showTree();
    tree.setCurrentIndex(node("RCPE0"));
    clipboard.setPicture({redSquare});
    QTest::keyClick(&tree, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard.picture().svg, redSquare);
    EXPECT_EQ(addIn.heard[1], "key 67/2 Anlage RCPE0 Rezepte");
}

TEST_F(ExplorerTest, TakesNodeImagesFromTheClipboard) {
    clipboard.setPicture({redSquare});
    explorer.takeClipboardImage("icoRed");
    explorer.addNode({.parent = "RCPE0", .caption = "Rot", .key = "RCPR1", .image = "icoRed"});
    const auto icon = node("RCPR1").data(Qt::DecorationRole).value<QIcon>();
    EXPECT_EQ(icon.pixmap(48, 48).toImage().pixelColor(24, 24), QColor(255, 0, 0));
    clipboard.clear();
    EXPECT_THROW(explorer.takeClipboardImage("icoNone"), automation::Error);
}

TEST_F(ExplorerTest, TakesAPictureOfAnotherProgramToo) {
    QImage image(20, 20, QImage::Format_ARGB32);
    image.fill(Qt::blue);
    QGuiApplication::clipboard()->setImage(image);
    explorer.takeClipboardImage("icoBlue");
    explorer.addNode({.parent = "RCPE0", .caption = "Blau", .key = "RCPR1", .image = "icoBlue"});
    const auto icon = node("RCPR1").data(Qt::DecorationRole).value<QIcon>();
    EXPECT_EQ(icon.pixmap(16, 16).toImage().pixelColor(8, 8), QColor(0, 0, 255));
}

TEST_F(ExplorerTest, ClosingTheProjectEndsTheReports) {
    showTree();
    explorer.closeProject();
    EXPECT_EQ(explorer.model().rowCount(), 0);
    explorer.openProject("Zweite", {});
    explorer.addNode({.parent = "", .caption = "Rezepte", .key = "RCPE0"});
    addIn.heard.clear();
    click("RCPE0");
    EXPECT_TRUE(addIn.heard.empty());
}

}  // namespace
}  // namespace hx::gui
