#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMdiArea>
#include <QMouseEvent>
#include <QTest>
#include <algorithm>

#include "adapters/qt/qt_clipboard.h"
#include "adapters/qt/qt_explorer.h"
#include "adapters/qt/svg_icon.h"
#include "gui/desktop.h"

namespace hx::gui {
namespace {

constexpr const char* redSquare =
    R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16"><rect width="16" height="16" fill="#ff0000"/></svg>)";

bool isModifier(std::int16_t code) { return code >= 16 && code <= 18; }

/// Writes down what it hears, but for Shift, Ctrl and Alt themselves.
class HeardAddIn : public host::CHX4Extensibility {
  public:
    std::vector<std::string> heard;
    std::function<void(const host::NodeEvent&)> onExpand, onClick;

    void Initialize(const std::string&, const std::string&, host::ProjectExplorer*,
                    const automation::ObjectRef&) override {}
    void StartupComplete() override {}
    void Terminate() override {}
    void Deactivate() override {}
    void NodeClick(const host::NodeEvent& node) override {
        hear("click", node);
        if (onClick) onClick(node);
    }
    void NodeDblClick(const host::NodeEvent& node) override { hear("double click", node); }
    void NodeExpand(const host::NodeEvent& node) override {
        hear("expand", node);
        if (onExpand) onExpand(node);
    }
    void NodeMouseDown(const host::NodeEvent& node, const host::NodeMouse& mouse) override {
        hear("down", node, mouse);
    }
    void NodeMouseMove(const host::NodeEvent&, const host::NodeMouse&) override {}
    void NodeMouseUp(const host::NodeEvent& node, const host::NodeMouse& mouse) override { hear("up", node, mouse); }
    void NodeKeyDown(const host::NodeEvent& node, std::int16_t code, std::int16_t shift) override {
        if (isModifier(code)) return;
        hear("key " + std::to_string(code) + "/" + std::to_string(shift), node);
    }
    void NodeKeyPress(const host::NodeEvent& node, std::int32_t character) override {
        hear("character " + std::to_string(character), node);
    }
    void NodeKeyUp(const host::NodeEvent& node, std::int16_t code, std::int16_t) override {
        if (isModifier(code)) return;
        hear("key up " + std::to_string(code), node);
    }
    automation::Variant GetMessage(const std::string&, const std::string&, const automation::Variant&) override {
        return {};
    }
    [[nodiscard]] const automation::MemberTable& members() const override {
        static constexpr automation::MemberTable table{"HeardAddIn", {}};
        return table;
    }

  private:
    void hear(const std::string& what, const host::NodeEvent& node) {
        heard.push_back(what + " " + node.owner + " " + node.key + " " + node.caption);
    }
    void hear(const std::string& what, const host::NodeEvent& node, const host::NodeMouse& mouse) {
        hear(what + " " + std::to_string(mouse.button) + "/" + std::to_string(mouse.shift), node);
        lastMouse = mouse;
    }

  public:
    host::NodeMouse lastMouse;
};

class ExplorerTest : public Desktop {
  protected:
    QMdiArea area;
    forms::WindowHandle areaHandle = windows.add(area);
    qt::QtClipboard clipboard;
    qt::ExplorerTree tree;
    qt::QtExplorer explorer{tree, areaHandle, clipboard, screen};
    HeardAddIn addIn;

    void SetUp() override {
        tree.resize(300, 400);
        explorer.openProject("Anlage", {});
        explorer.setAddIn(&addIn);
        explorer.addNode({.parent = "", .caption = "Rezepte", .key = "RCPE0", .options = {true, true, true}});
        handleEvents();
    }
    void showTree() {
        tree.show();
        tree.activateWindow();
        ASSERT_TRUE(waitUntil([this] { return tree.isActiveWindow(); }));
        tree.setFocus();
    }
    void addRecipes(int count) {
        for (int i = 1; i <= count; ++i) {
            const std::string number = std::to_string(i);
            const std::string recipe = "RCPR" + number;
            explorer.addNode({.parent = "RCPE0", .caption = "Rezept " + number, .key = recipe});
            explorer.addNode({.parent = recipe, .caption = "Unterrezepte", .key = "RCPU" + number});
        }
    }
    [[nodiscard]] QModelIndex node(std::string_view key) { return explorer.model().find(key); }
    void click(std::string_view key, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(tree.viewport(), button, {}, tree.visualRect(node(key)).center());
    }
};

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
