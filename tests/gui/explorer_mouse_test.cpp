// SPDX-License-Identifier: MIT
#include <QMouseEvent>
#include <algorithm>

#include "gui/explorer_fixture.h"

namespace hx::gui {
namespace {

TEST_F(ExplorerTest, AClickAndItsMouseReachTheAddInWithThePosition) {
    showTree();
    click("RCPE0");
    EXPECT_EQ(addIn.heard, (std::vector<std::string>{"down 1/0 Anlage RCPE0 Rezepte", "click Anlage RCPE0 Rezepte",
                                                     "up 1/0 Anlage RCPE0 Rezepte"}));
    EXPECT_EQ(addIn.lastMouse.x, screen.units().twips(tree.visualRect(node("RCPE0")).center().x()));
}

TEST_F(ExplorerTest, TheRightButtonShowsTheNodeBeforeItAsksForTheMenu) {
    showTree();
    click("RCPE0", Qt::RightButton);
    EXPECT_EQ(addIn.heard, (std::vector<std::string>{"down 2/0 Anlage RCPE0 Rezepte", "click Anlage RCPE0 Rezepte",
                                                     "up 2/0 Anlage RCPE0 Rezepte"}));
    EXPECT_EQ(explorer.selectedNode().key, "RCPE0");
}

/// The mouse on the nodes of three recipes, one button event at a time.
class ExplorerMouseTest : public ExplorerTest {
  protected:
    void SetUp() override {
        ExplorerTest::SetUp();
        addRecipes(3);
        handleEvents();
        showTree();
        tree.expand(node("RCPE0"));
        click("RCPR1");
        addIn.heard.clear();
    }
    [[nodiscard]] QPoint place(std::string_view key) { return tree.visualRect(node(key)).center(); }
    [[nodiscard]] QPoint emptySpace() { return tree.viewport()->rect().bottomRight() - QPoint(5, 5); }
    void press(std::string_view key, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(tree.viewport(), button, {}, place(key));
    }
    void release(const QPoint& at, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseRelease(tree.viewport(), button, {}, at);
    }
    void drag(const QPoint& to, Qt::MouseButtons held = Qt::LeftButton) {
        QMouseEvent move(QEvent::MouseMove, QPointF(to), QPointF(tree.viewport()->mapToGlobal(to)), Qt::NoButton, held,
                         {});
        QApplication::sendEvent(tree.viewport(), &move);
    }
    /// What the add-in heard, and that what it heard of last is highlighted.
    void expect(const std::vector<std::string>& heard) {
        std::vector<std::string> withNames;
        for (const std::string& each : heard) withNames.push_back(each + " Rezept " + each.back());
        EXPECT_EQ(addIn.heard, withNames);
        EXPECT_EQ(explorer.selectedNode().key, lastClicked());
    }

  private:
    [[nodiscard]] std::string lastClicked() const {
        const auto isClick = [](const std::string& each) { return each.starts_with("click "); };
        const auto found = std::find_if(addIn.heard.rbegin(), addIn.heard.rend(), isClick);
        return found == addIn.heard.rend() ? "RCPR1" : "RCPR" + std::string(1, found->back());
    }
};

TEST_F(ExplorerMouseTest, APressClicksTheNodeThatItHighlights) {
    press("RCPR2");
    expect({"down 1/0 Anlage RCPR2", "click Anlage RCPR2"});
    release(place("RCPR2"));
    expect({"down 1/0 Anlage RCPR2", "click Anlage RCPR2", "up 1/0 Anlage RCPR2"});
}

TEST_F(ExplorerMouseTest, ASlipToAnotherNodeClicksTheOneThatItLeavesHighlighted) {
    press("RCPR2");
    drag(place("RCPR3"));
    release(place("RCPR3"));
    expect({"down 1/0 Anlage RCPR2", "click Anlage RCPR2", "click Anlage RCPR3", "up 1/0 Anlage RCPR3"});
}

TEST_F(ExplorerMouseTest, ASlipFromTheNodeThatIsShownClicksTheOther) {
    press("RCPR1");
    drag(place("RCPR3"));
    release(emptySpace());
    expect({"down 1/0 Anlage RCPR1", "click Anlage RCPR3"});
}

TEST_F(ExplorerMouseTest, EmptySpaceLeavesTheNodeHighlighted) {
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, emptySpace());
    QTest::mouseClick(tree.viewport(), Qt::RightButton, {}, emptySpace());
    expect({});
    press("RCPR2");
    release(emptySpace());
    expect({"down 1/0 Anlage RCPR2", "click Anlage RCPR2"});
}

TEST_F(ExplorerMouseTest, TheMenuIsForTheNodeThatTheRightButtonLeavesHighlighted) {
    press("RCPR2", Qt::RightButton);
    drag(place("RCPR3"), Qt::RightButton);
    release(place("RCPR3"), Qt::RightButton);
    expect({"down 2/0 Anlage RCPR2", "click Anlage RCPR2", "click Anlage RCPR3", "up 2/0 Anlage RCPR3"});
}

TEST_F(ExplorerMouseTest, ARightClickOnTheNodeThatIsShownClicksItAgain) {
    click("RCPR1", Qt::RightButton);
    expect({"down 2/0 Anlage RCPR1", "click Anlage RCPR1", "up 2/0 Anlage RCPR1"});
}

TEST_F(ExplorerMouseTest, BothButtonsClickEachNodeBeforeItsMenu) {
    press("RCPR2");
    press("RCPR3", Qt::RightButton);
    release(place("RCPR3"), Qt::RightButton);
    release(place("RCPR3"));
    expect({"down 1/0 Anlage RCPR2", "click Anlage RCPR2", "down 2/0 Anlage RCPR3", "click Anlage RCPR3",
            "up 2/0 Anlage RCPR3", "up 1/0 Anlage RCPR3"});
}

TEST_F(ExplorerMouseTest, AKeyWhileAButtonIsHeldIsOfTheNodeThatWasClickedBefore) {
    press("RCPR2");
    QTest::keyClick(&tree, Qt::Key_F9);
    drag(place("RCPR3"));
    QTest::keyClick(&tree, Qt::Key_F9);
    expect({"down 1/0 Anlage RCPR2", "click Anlage RCPR2", "key 120/0 Anlage RCPR2", "key up 120 Anlage RCPR2",
            "click Anlage RCPR3", "key 120/0 Anlage RCPR3", "key up 120 Anlage RCPR3"});
}

TEST_F(ExplorerMouseTest, ANodeThatAProgramHighlightsIsClickedBeforeItsFirstKey) {
    explorer.select("RCPR3");
    QTest::keyClick(&tree, Qt::Key_F9);
    expect({"click Anlage RCPR3", "key 120/0 Anlage RCPR3", "key up 120 Anlage RCPR3"});
}

TEST_F(ExplorerMouseTest, TheNodeThatTakesThePlaceOfARemovedOneIsClickedBeforeItsFirstKey) {
    explorer.removeNode("RCPR1");
    handleEvents();
    QTest::keyClick(&tree, Qt::Key_F9);
    expect({"click Anlage RCPR2", "key 120/0 Anlage RCPR2", "key up 120 Anlage RCPR2"});
}

}  // namespace
}  // namespace hx::gui
