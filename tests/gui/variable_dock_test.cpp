// SPDX-License-Identifier: MIT
#include "gui/find_fixture.h"

namespace hx::gui {
namespace {

/// The dock beside the editor that tells of the variable in the current row.
class StudioVariableDock : public StudioFind {
  protected:
    void showDock() {
        showMembers();
        execute("INSERT INTO TrcpRecipeMember (ParentID, ChildID, VarRecipe) VALUES (2, 0, 'mischer.wasser')");
        find<QWidget>(window(), "variableDock").show();
        handleEvents();
    }
    [[nodiscard]] std::string label(const char* name) { return find<QLabel>(window(), name).text().toStdString(); }
    void goToRow(int row) {
        grid().setFocus();
        const QRect cell = grid().visualRect(grid().model()->index(row, column("Variable")));
        QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, cell.topLeft() + QPoint(10, 5));
        handleEvents();
    }
};

TEST_F(StudioVariableDock, FollowsTheCurrentRow) {
    showDock();
    goToRow(1);
    EXPECT_TRUE(comes("variableUseList", {"Rezepte, die sie enthalten (1)", "  Apfelschorle|Variable",
                                          "Über Unterrezepte (1)", "  Meyer's Bräu|über Limonade"}));
    EXPECT_EQ(label("variableName"), "Mischer.Wasser");
    EXPECT_EQ(label("variableType"), "REAL");
    EXPECT_EQ(label("variableComment"), "in Liter");
    goToRow(0);
    EXPECT_TRUE(
        waitUntil([this] { return label("variableName") == "Mischer.Zucker" && !label("variableUses").empty(); }));
    EXPECT_EQ(label("variableUses"), "Sie steht nicht in der Variablenliste.\nWeitere Verwendungen: 1");
    EXPECT_EQ(label("variableType"), "");
}

TEST_F(StudioVariableDock, GoesToAnotherRecipeThatUsesTheVariable) {
    showDock();
    goToRow(1);
    ASSERT_TRUE(waitUntil([this] { return !lines("variableUseList").empty(); }));
    clickThing("variableUseList", 0, 0);
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Apfelschorle"));
    EXPECT_TRUE(waitUntil([this] {
        return lines("variableUseList").size() > 1 && lines("variableUseList")[1] == "  Limonade|Variable";
    }));
    window().closeProject();
    handleEvents();
    EXPECT_EQ(label("variableName"), "Keine Variable gewählt");
}

TEST_F(StudioVariableDock, IsUpToDateAfterAChange) {
    showDock();
    goToRow(1);
    ASSERT_TRUE(waitUntil([this] { return label("variableType") == "REAL"; }));
    edit(1, "Variable", "Datei.Limonade");
    EXPECT_TRUE(waitUntil([this] { return label("variableType") == "STRING"; }));
    EXPECT_EQ(label("variableName"), "Datei.Limonade");
}

}  // namespace
}  // namespace hx::gui
