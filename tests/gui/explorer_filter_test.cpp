// SPDX-License-Identifier: MIT
#include <QAction>
#include <QLabel>
#include <QTest>

#include "gui/explorer_fixture.h"
#include "gui/studio_fixture.h"

namespace hx::gui {
namespace {

using Texts = std::vector<std::string>;

/// The children of "Rezepte" as the explorer shows them.
class ExplorerArrangement : public ExplorerTest {
  protected:
    void arrange(const char* words, bool byName = false) {
        explorer.model().arrange("RCPE0", automation::WordFilter(words), byName);
    }
    void add(const char* key, const char* caption) {
        explorer.addNode({.parent = "RCPE0", .caption = caption, .key = key});
        explorer.addNode({.parent = key, .caption = "Unterrezepte", .key = "U" + std::string(key)});
    }
    void addSome() {
        add("1", "Tank 10");
        add("2", "Tank 2");
        add("3", "apfel");
        add("4", "Mischer");
        handleEvents();
    }
    [[nodiscard]] Texts shown() {
        Texts texts;
        const QModelIndex root = node("RCPE0");
        for (int row = 0; row < explorer.model().rowCount(root); ++row)
            texts.push_back(explorer.model().index(row, 0, root).data().toString().toStdString());
        return texts;
    }
};

TEST_F(ExplorerArrangement, ShowsThoseWhoseNamesHaveAllWords) {
    addSome();
    arrange("TANK -2");
    EXPECT_EQ(shown(), Texts{"Tank 10"});
    arrange("");
    EXPECT_EQ(shown(), (Texts{"Tank 10", "Tank 2", "apfel", "Mischer"}));
}

TEST_F(ExplorerArrangement, OrdersByNameAsAReaderLooksThemUp) {
    addSome();
    arrange("", true);
    EXPECT_EQ(shown(), (Texts{"apfel", "Mischer", "Tank 2", "Tank 10"}));
    arrange("tank", true);
    EXPECT_EQ(shown(), (Texts{"Tank 2", "Tank 10"}));
    explorer.model().setCaption("1", "Tank 1");
    arrange("tank", true);
    EXPECT_EQ(shown(), (Texts{"Tank 1", "Tank 2"}));
}

TEST_F(ExplorerArrangement, KeepsWhatIsOpenAndChosen) {
    addSome();
    tree.expand(node("RCPE0"));
    tree.expand(node("2"));
    tree.setCurrentIndex(node("2"));
    arrange("", true);
    EXPECT_EQ(tree.currentIndex(), node("2"));
    EXPECT_TRUE(tree.isExpanded(node("2")));
    EXPECT_EQ(node("2").row(), 2);
    arrange("mischer");
    EXPECT_FALSE(tree.currentIndex().isValid());
}

TEST_F(ExplorerArrangement, ShowsWhatIsAskedForByItsKey) {
    addSome();
    arrange("apfel");
    ASSERT_TRUE(node("U2").isValid());
    EXPECT_EQ(node("U2").parent(), node("2"));
    EXPECT_EQ(shown(), (Texts{"apfel", "Tank 2"}));
}

TEST_F(ExplorerArrangement, ShowsWhatComesLaterAtTheEnd) {
    addSome();
    arrange("tank", true);
    add("5", "Neu");
    handleEvents();
    EXPECT_EQ(shown(), (Texts{"Tank 2", "Tank 10", "Neu"}));
}

TEST_F(ExplorerArrangement, HoldsWhenTheBranchIsFilledAfresh) {
    addSome();
    arrange("tank", true);
    for (const char* key : {"1", "2", "3", "4"}) explorer.removeNode(key);
    EXPECT_EQ(shown(), Texts());
    addSome();
    EXPECT_EQ(shown(), (Texts{"Tank 2", "Tank 10"}));
}

TEST_F(ExplorerArrangement, LosesWhatIsRemovedShownOrHidden) {
    addSome();
    arrange("tank", true);
    explorer.removeNode("1");
    explorer.removeNode("3");
    explorer.removeNode("U4");
    EXPECT_EQ(shown(), Texts{"Tank 2"});
    arrange("");
    EXPECT_EQ(shown(), (Texts{"Tank 2", "Mischer"}));
    EXPECT_FALSE(node("U4").isValid());
    explorer.removeNode("RCPE0");
    EXPECT_FALSE(node("2").isValid());
}

/// The line above the explorer of the real studio.
class StudioFilter : public StudioTest {
  protected:
    [[nodiscard]] QLineEdit& field() { return find<QLineEdit>(window(), "explorerFilter"); }
    [[nodiscard]] QLabel& count() { return find<QLabel>(window(), "explorerCount"); }
    [[nodiscard]] QAction& sort() { return find<QAction>(window(), "actionSortByName"); }
    void look(const char* words) {
        QTest::keyClick(&window(), Qt::Key_F, Qt::ControlModifier);
        ASSERT_TRUE(field().hasFocus());
        type(field(), words);
        handleEvents();
    }
    [[nodiscard]] Texts recipes() {
        Texts texts;
        const QModelIndex root = node("Rezepte");
        for (int row = 0; row < root.model()->rowCount(root); ++row)
            texts.push_back(root.model()->index(row, 0, root).data().toString().toStdString());
        return texts;
    }
};

TEST_F(StudioFilter, FindsRecipesAndTellsHowMany) {
    startAtMembers();
    EXPECT_FALSE(count().isVisible());
    look("ME bräu");
    EXPECT_EQ(recipes(), Texts{"Meyer's Bräu"});
    EXPECT_EQ(count().text(), "1 von 3");
    EXPECT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor: Limonade");
    QTest::keyClick(&field(), Qt::Key_Return);
    handleEvents();
    EXPECT_TRUE(tree().hasFocus());
    EXPECT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor: Meyer's Bräu");
}

TEST_F(StudioFilter, LeavesTheExplorerAsItWas) {
    startAtMembers();
    tree().expand(node("Rezepte/Apfelschorle"));
    look("bräu");
    QTest::keyClick(&field(), Qt::Key_Escape);
    EXPECT_EQ(recipes(), (Texts{"Limonade", "Apfelschorle", "Meyer's Bräu"}));
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Limonade"));
    EXPECT_TRUE(tree().isExpanded(node("Rezepte/Apfelschorle")));
    EXPECT_FALSE(tree().isExpanded(node("Rezepte/Meyer's Bräu")));
    EXPECT_FALSE(count().isVisible());
}

TEST_F(StudioFilter, OpensTheBranchToLookIntoIt) {
    start();
    open(makeProject());
    look("lim");
    EXPECT_EQ(recipes(), Texts{"Limonade"});
    EXPECT_TRUE(field().hasFocus());
}

TEST_F(StudioFilter, StaysWhenTheViewIsRefreshed) {
    startAtMembers();
    sort().trigger();
    look("l");
    EXPECT_EQ(recipes(), (Texts{"Apfelschorle", "Limonade"}));
    (void)std::dynamic_pointer_cast<automation::Dispatch>(window().project()->addIn())->get("RefreshView");
    handleEvents();
    EXPECT_EQ(recipes(), (Texts{"Apfelschorle", "Limonade"}));
    EXPECT_EQ(count().text(), "2 von 3");
    window().closeProject();
    EXPECT_EQ(field().text(), "");
}

}  // namespace
}  // namespace hx::gui
