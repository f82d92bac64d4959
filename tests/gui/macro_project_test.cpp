// SPDX-License-Identifier: MIT
#include <QLineEdit>
#include <QTest>

#include "adapters/qt/text.h"
#include "gui/macro_fixture.h"

namespace hx::gui {
namespace {

using testing::HasSubstr;
using Texts = std::vector<std::string>;

TEST_F(StudioMacroTest, MakesAndRenamesRecipesThatTheExplorerTheGridAndTheFileShow) {
    start();
    const QString file = makeProject();
    open(file);
    EXPECT_EQ(run(R"(
        studio.Click("RCPE0")
        editor.abr.Click("mnuRecipeNew")
        studio.Click("RCPR4")
        studio.OnDialog("FRecipe", function(d)
            d.txtName.Text = "Cola"
            d.cmdOk.Click()
        end)
        editor.abr.Click("mnuRecipeEdit")
        studio.Click("RCPR3")
        studio.OnDialog("FRecipe", function(d) d.txtName.Text = "Bier" d.cmdOk.Click() end)
        editor.abr.Click("mnuRecipeEdit")
        print(project.Query("SELECT Name FROM TrcpRecipe WHERE ID = 4")[1].Name, studio.Selected(), editor.Caption))"),
              "Cola\tRCPR3\tHelvixStudio Rezepteditor: Bier\n");
    EXPECT_TRUE(node("Rezepte/Cola").isValid());
    EXPECT_TRUE(node("Rezepte/Bier").isValid());
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Bier"));
    EXPECT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor: Bier");
    click("Rezepte/Limonade");
    EXPECT_EQ(texts("Variable"), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
    EXPECT_EQ(run(R"(studio.Click("RCPR1")
        editor.tdbRM.SetText(0, "VarRecipe", "Mischer.Neu")
        editor.tdbRM.Update())"),
              "");
    EXPECT_EQ(texts("Variable")[0], "Mischer.Neu");
    EXPECT_EQ(stored(file, 1)[0], "Mischer.Neu");
}

TEST_F(StudioMacroTest, SeesTheNodesOfTheProjectAsTheCommandLineDoes) {
    start();
    open(makeProject());
    EXPECT_EQ(run(R"(
        for _, n in ipairs(studio.Nodes()) do print(n.key, n.parent, n.caption, n.image, n.tag) end
        studio.Expand("RCPE0")
        print(#studio.Nodes(), studio.Nodes()[2].parent, studio.Nodes()[2].caption)
        studio.Select("RCPR2") print(studio.Selected()) studio.Select("") print(studio.Selected())
        print(pcall(studio.Select, "HXPROJECT")))"),
              "RCPE0\t\tRezepte\ticoRcpRecipe\t0\n7\tRCPE0\tLimonade\nRCPR2\nnil\n"
              "false\t-2147352565: Nodes has no item \"HXPROJECT\"\n");
    EXPECT_TRUE(tree().isExpanded(node("Rezepte")));
}

TEST_F(StudioMacroTest, WorksOnWhatTheUserHasOpen) {
    start();
    const QString file = makeProject();
    open(file);
    click("Rezepte");
    click("Rezepte/Limonade");
    // What is still being typed comes first.
    typeInCell(0, "Variable", "Neu");
    EXPECT_EQ(run("print(studio.Selected(), editor.Caption, editor.tdbRM.Text(0, 'VarRecipe'))"
                  " studio.Click('RCPR2')"),
              "RCPR1\tHelvixStudio Rezepteditor: Limonade\tNeu\n");
    EXPECT_EQ(stored(file, 1)[0], "Neu");
    EXPECT_EQ(texts("Variable"), Texts{"Mischer.Apfelsaft"});
}

TEST_F(StudioMacroTest, AnswersByItsFunctionsWithoutAskingTheUser) {
    start();
    open(makeProject());
    const BoxAnswers nobody;
    EXPECT_EQ(run(R"(
        studio.Click("RCPE0") studio.Click("RCPR1")
        studio.OnMessage(function(text, title, buttons, default)
            print(#text > 0, table.concat(buttons, "/"), default)
            return "no"
        end)
        editor.abr.Click("mnuRecipeDelete")
        print(#project.Query("SELECT 1 FROM TrcpRecipe"), studio.Messages()[1].answer)
        studio.OnItemSelection(function(current) return "Tank.Level" end)
        studio.OnPathSelection(function(current) return "/rezepte" end)
        studio.OnDialog("FRecipe", function(d)
            d.cmdChooseItem(0).Click()
            d.cmdChoosePath.Click()
            print(d.txtRecipeName.Text, d.cboFilePath.Text)
            d.cmdHelp.Click()
        end)
        editor.abr.Click("mnuRecipeEdit")
        studio.OnPopup(function(band) return "mnuRecipeNew" end)
        studio.MouseUp("RCPE0", 2)
        print(table.concat(studio.Popups(), " "), #project.Query("SELECT 1 FROM TrcpRecipe"))
        studio.OnFont(function(font) font.Size = 11 end)
        studio.OnDialog("FConfigEditor", function(d) d.cmdEditorFont.Click() d.cmdOk.Click() end)
        editor.abr.Click("mnuOptionOption")
        print(editor.Font.Size)
        studio.RegisterComponent("HXProjectReport.Connect", {Show = function(...) print("shown", select("#", ...)) end})
        editor.mnuOption(7)
        print(studio.Components()[1].member, #studio.Help()))"),
              "true\tyes/no\tno\n3\tno\nTank.Level\t/rezepte\nmnuRecipe\t4\n11.0\nshown\t3\nShow\t1\n");
    EXPECT_TRUE(nobody.shown().empty());
    host().help().closeAll();
}

TEST_F(StudioMacroTest, AsksTheUserWhereItHasNoFunction) {
    start();
    open(makeProject());
    {
        const BoxAnswers answers({"Ja"});
        EXPECT_EQ(run(R"(studio.Click("RCPE0") studio.Click("RCPR1") editor.abr.Click("mnuRecipeDelete")
            print(#project.Query("SELECT 1 FROM TrcpRecipe"), studio.Messages()[1].answer))"),
                  "2\tyes\n");
        EXPECT_EQ(answers.shown().size(), 1U);
    }
    QWidget* dialog = nullptr;
    const std::string text = run(R"(studio.Click("RCPR2") editor.abr.Click("mnuRecipeEdit")
        print(project.Query("SELECT Name FROM TrcpRecipe WHERE ID = 2")[1].Name))",
                                 [&] {
                                     dialog = QApplication::activeModalWidget();
                                     ASSERT_NE(dialog, nullptr);
                                     find<QLineEdit>(*dialog, "txtName").selectAll();
                                     type(find<QLineEdit>(*dialog, "txtName"), "Schorle");
                                     QTest::keyClick(&find<QLineEdit>(*dialog, "txtName"), Qt::Key_Return);
                                 },
                                 [] { return QApplication::activeModalWidget() != nullptr; });
    EXPECT_EQ(text, "Schorle\n");
    EXPECT_TRUE(node("Rezepte/Schorle").isValid());
}

TEST_F(StudioMacroTest, OpensAndClosesProjectsAsTheMenuDoes) {
    start();
    const QString first = makeProject();
    open(first);
    EXPECT_EQ(run(R"(
        studio.Click("RCPE0")
        local kept, add, bar = editor, addin, editor.abr
        local dialog
        studio.Click("RCPR1")
        studio.OnDialog("FRecipe", function(d) dialog = d end)
        editor.abr.Click("mnuRecipeEdit")
        studio.OnMessage(function() end)
        studio.CloseProject()
        print(editor, addin, #studio.Nodes(), add.ProjectName, kept.Caption ~= nil)
        pcall(kept.MenuSwitcher, "RCPE0", false) pcall(bar.Click, "mnuRecipeNew") pcall(dialog.cmdOk.Click)
        studio.NewProject("neu")
        studio.Click("RCPE0") editor.abr.Click("mnuRecipeNew")
        print(addin.ProjectName, #studio.Nodes())
        studio.OpenProject("Anlage") print(addin.ProjectName)
        studio.OpenProject("neu.hxs") print(addin.ProjectName)
        print((pcall(studio.NewProject, "neu")), (pcall(studio.OpenProject, "gibtsnicht.hxs")),
              (pcall(studio.OpenProject, "gibtsnicht")), addin.ProjectName))"),
              "nil\tnil\t0\tAnlage\ttrue\nneu\t3\nAnlage\nneu\nfalse\tfalse\tfalse\tneu\n");
    EXPECT_EQ(window().windowTitle(), "HelvixStudio - neu");
    EXPECT_TRUE(QFile::exists(folder.filePath("neu.hxs")));
    EXPECT_TRUE(node("Rezepte").isValid());
    EXPECT_THAT(run("studio.OpenProject('fehlt.hxs')"), HasSubstr("Die Projektdatei wurde nicht gefunden"));
}

TEST_F(StudioMacroTest, LeavesTheStudioUsableWhenItClosesTheProjectInsideAnAnswerOrAComponent) {
    start();
    open(makeProject());
    run(R"(studio.Click("RCPE0") studio.Click("RCPR1")
        studio.OnMessage(function() studio.CloseProject() return "yes" end)
        editor.abr.Click("mnuRecipeDelete")
        for i = 1, 3000000 do local x = i end)");
    EXPECT_EQ(window().project(), nullptr);
    open(makeProject("Dritte"));
    run(R"(studio.Click("RCPE0") studio.Click("RCPR1")
        studio.RegisterComponent("HXProjectReport.Connect", {Show = function()
            studio.CloseProject()
            for i = 1, 3000000 do local x = i end
        end})
        editor.abr.Click("mnuOptionReport"))");
    EXPECT_EQ(window().project(), nullptr);
    open(makeProject("Zweite"));
    click("Rezepte");
    EXPECT_EQ(tree().model()->rowCount(node("Rezepte")), 3);
}

}  // namespace
}  // namespace hx::gui
