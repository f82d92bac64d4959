// SPDX-License-Identifier: MIT
#include "run_macro_text.h"

namespace hx::cli {

namespace {

using testing::HasSubstr;

class RunMacro : public MacroTextTest {};

TEST_F(RunMacro, PrintsAndGetsArguments) {
    macro_ = write("m.lua", "print('got', ...)");
    const Result result = hxrecipe({"run", macro_.c_str(), "a", "b"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.results, "got\ta\tb\n");
    EXPECT_EQ(hxrecipe({"run", macro_.c_str(), "--", "--x"}).results, "got\t--x\n");
}

TEST_F(RunMacro, FailsForAProjectThatIsNone) {
    const std::string none = write("none.hxs", "no database");
    const Result result = macro("print('ran')", {"--project", none.c_str()});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.results, "");
    EXPECT_THAT(result.problems, HasSubstr(none));
    EXPECT_EQ(contents(none), "no database");
}

TEST_F(RunMacro, MakesTheFolderOfTheRegistry) {
    const std::string config = folder_.file("new/config");
    EXPECT_EQ(printed("studio.SetRegistry('Key', 'Value', 1)", {"--trust", "--config", config.c_str()}), "");
    EXPECT_THAT(contents(config + "/registry.ini"), HasSubstr("Value"));
}

TEST_F(RunMacro, FailsWhereTheFolderOfTheRegistryIsAFile) {
    const std::string config = write("config", "a file");
    const Result result = macro("print('ran')", {"--config", config.c_str()});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.results, "");
    EXPECT_THAT(result.problems, HasSubstr("Cannot make the folder '" + config + "'"));
    EXPECT_EQ(contents(config), "a file");
}

TEST_F(RunMacro, ThatFailsSaysWhereOnStandardError) {
    const Result result = macro("print('before')\neditor.abr.Click('x')");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.results, "before\n");
    EXPECT_THAT(result.problems, HasSubstr("hxrecipe: " + macro_ + ":2: attempt to index a nil value"));
    EXPECT_THAT(result.problems, HasSubstr("stack traceback:"));
    EXPECT_EQ(macro("x = =").status, 1);
}

TEST_F(RunMacro, RefusesWrongUsage) {
    macro_ = write("m.lua", "");
    const char* const file = macro_.c_str();
    for (const std::vector<const char*>& arguments :
         std::vector<std::vector<const char*>>{{"run"},
                                               {"run", "/nowhere/m.lua"},
                                               {"run", "--lcid", "7", file},
                                               {"run", "--locale", "xx_YY", file},
                                               {"run", "--project", "/nowhere/x.hxs", file},
                                               {"run", "--nonsense", file}}) {
        const Result result = hxrecipe(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_NE(result.problems, "");
    }
}

TEST_F(RunMacro, MakesAProjectAndShowsItsNodes) {
    EXPECT_EQ(printed(R"(studio.NewProject("$P")
        for _, n in ipairs(studio.Nodes()) do print(n.key, n.parent, n.caption, n.image, n.tag) end
        print(addin.ProjectName, addin.ProjectPath == "$P", editor)
        studio.CloseProject()
        print(#studio.Nodes(), addin))",
                      {"--lcid", "1033"}),
              "RCPE0\t\tRecipes\ticoRcpRecipe\t0\nplant\ttrue\tnil\n0\tnil\n");
    EXPECT_EQ(query(file_, "TrcpRecipe"), "");
}

TEST_F(RunMacro, CreatesARecipeThroughItsDialog) {
    EXPECT_EQ(printed(std::string(newRecipe) + R"(
        studio.NewProject("$P")
        newRecipe("Cola")
        print(studio.Selected(), #studio.Nodes(), studio.Nodes()[2].caption)
        print(project.Query("SELECT ID, Name, VarSave FROM TrcpRecipe")[1].Name)
        for _, m in ipairs(studio.Messages()) do print(m.title, m.text) end)"),
              "RCPR1\t3\tCola\nCola\n");
    EXPECT_EQ(query(file_, "SELECT Name FROM TrcpRecipe"), "Cola");
}

TEST_F(RunMacro, OpensTheProjectThatItIsGiven) {
    ASSERT_EQ(hxrecipe({"new", file_.c_str()}).status, 0);
    EXPECT_EQ(printed("print(addin.ProjectPath == '$P', #studio.Nodes())", {"--project", file_.c_str()}), "true\t1\n");
}

TEST_F(RunMacro, OpensAProjectByTheNameThatTheRegistryKnows) {
    const std::string config = folder_.file("config");
    EXPECT_EQ(printed("studio.NewProject('$P')", {"--config", config.c_str()}), "");
    EXPECT_EQ(printed("studio.OpenProject('plant') print(addin.ProjectName)", {"--config", config.c_str()}), "plant\n");
    const Result other = macro("studio.OpenProject('plant')");
    EXPECT_EQ(other.status, 1);
    EXPECT_THAT(other.problems, HasSubstr("No project 'plant' is known"));
}

TEST_F(RunMacro, RefusesProjectsThatCannotBeOpenedOrMade) {
    EXPECT_THAT(macro("studio.OpenProject('" + folder_.file("x.hxs") + "')").problems,
                HasSubstr("There is no project file"));
    write("plant.hxs", "mine");
    EXPECT_THAT(macro("studio.NewProject('$P')").problems, HasSubstr("exists already"));
    EXPECT_THAT(macro("studio.NewProject('" + folder_.file("a;b") + "')").problems, HasSubstr("semicolon"));
    EXPECT_THAT(macro("studio.Click('RCPE0')").problems, HasSubstr("No project is open"));
    EXPECT_THAT(macro("project.Query('SELECT 1')").problems, HasSubstr("No project is open"));
    EXPECT_EQ(std::filesystem::file_size(file_), 4U);
}

TEST_F(RunMacro, AnswersMessageBoxes) {
    EXPECT_EQ(printed(std::string(newRecipe) + R"(
        studio.NewProject("$P") newRecipe("Cola")
        studio.Click("RCPR1")
        editor.abr.Click("mnuRecipeDelete")
        local m = studio.Messages()[1]
        print(table.concat(m.buttons, "/"), m.answer, #studio.Nodes())
        studio.OnMessage(function(text, title, buttons, default)
            print(#text > 0, title, table.concat(buttons, "/"), default)
            return "yes"
        end)
        editor.abr.Click("mnuRecipeDelete")
        print(#studio.Messages(), #studio.Messages(), #studio.Nodes()))"),
              "yes/no\tno\t3\ntrue\tHXRecipeEditor\tyes/no\tno\n1\t0\t1\n");
}

TEST_F(RunMacro, FailsWithAnAnswerThatTheBoxDoesNotHave) {
    const Result result = macro(std::string(newRecipe) + R"(
        studio.NewProject("$P") newRecipe("Cola")
        studio.OnMessage(function() return "maybe" end)
        editor.abr.Click("mnuRecipeDelete"))");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.problems, HasSubstr("has no button \"maybe\""));
    EXPECT_EQ(query(file_, "SELECT Name FROM TrcpRecipe"), "Cola");
}

TEST_F(RunMacro, FailsWhenAFunctionForADialogFails) {
    const Result result = macro(R"(
        studio.NewProject("$P") studio.Click("RCPE0") editor.abr.Click("mnuRecipeNew") studio.Click("RCPR1")
        studio.OnDialog("FRecipe", function(d)
            d.txtNonsense.Text = "x"
        end)
        editor.abr.Click("mnuRecipeEdit"))");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.problems, HasSubstr("m.lua:4: -2147352570: FRecipe has no member \"txtNonsense\""));
    EXPECT_THAT(result.problems, HasSubstr("m.lua:6:"));
    EXPECT_EQ(query(file_, "SELECT Name FROM TrcpRecipe"), "Neues Rezept");
    EXPECT_THAT(macro("studio.OnDialog('FNothing', print)").problems, HasSubstr("FNothing"));
}

TEST_F(RunMacro, ChoosesVariablesAndShowsThemInTheGrid) {
    EXPECT_EQ(printed(std::string(newRecipe) + R"(
        studio.NewProject("$P")
        studio.SetVariables({"Tank.Level", "Tank.Heat", "Pump"})
        print(table.concat(studio.Variables(), " "))
        newRecipe("Cola")
        studio.OnDialog("FMultiSelectItems", function(d)
            d.hxMI.SelectedItems = {"Tank.Level", "Pump"}
            d.cmdOk.Click()
        end)
        editor.abr.Click("mnuRecipeMemberNewVariable")
        local grid = editor.tdbRM
        print(grid.RowCount, grid.Text(0, "VarRecipe"), grid.Text(1, "varrecipe"))
        grid.SelectRows({0, 1})
        print(grid.SelectedCount, grid.Value(0, "ChildID"))
        grid.Columns("VarRecipe").Width = 1234
        print(grid.Columns("VarRecipe").Width, editor.sb.Panels(1).Text ~= nil, editor.Caption))"),
              "Pump Tank.Heat Tank.Level\n2\tTank.Level\tPump\n2\t0\n1234.0\ttrue\tHelvixStudio Rezepteditor: Cola\n");
}

TEST_F(RunMacro, UsesControlArraysListsAndTheChoiceOfAnItem) {
    EXPECT_EQ(
        printed(R"(studio.NewProject("$P") studio.Click("RCPE0") editor.abr.Click("mnuRecipeNew") studio.Click("RCPR1")
        studio.OnItemSelection(function(current) return "Tank.Level" end)
        studio.OnPathSelection(function(current) return "/rezepte" end)
        studio.OnDialog("FRecipe", function(d)
            d.cmdChooseItem(0).Click()
            d.cmdChoosePath.Click()
            d.optRecipeAbsrel(1).Click()
            print(d.txtRecipeName.Text, d.cboFilePath.Text, d.optRecipeAbsrel(1).Value, d.optRecipeAbsrel[0].Value)
            d.chkEnabled.Click()
            print(d.chkEnabled.Value, d.cboFilePath.List(0), d.cboFilePath.ListIndex)
        end)
        editor.abr.Click("mnuRecipeEdit"))"),
        "Tank.Level\t/rezepte\ttrue\tfalse\n1\t<ProjectDir>\t-1\n");
}

TEST_F(RunMacro, ShowsPopUpsAndChoosesFromThem) {
    EXPECT_EQ(printed(R"(studio.NewProject("$P") studio.Click("RCPE0")
        studio.OnPopup(function(band) print(band) return "mnuRecipeNew" end)
        studio.MouseUp("RCPE0", 2)
        print(table.concat(studio.Popups(), " "), #studio.Nodes(), studio.Nodes()[2].caption)
        studio.OnPopup(nil)
        studio.NodeMouseUp("RCPR1", 2, 0, 10, 10)
        print(#studio.Popups(), #studio.Popups()))"),
              "mnuRecipe\nmnuRecipe\t3\tNeues Rezept\n1\t0\n");
}

TEST_F(RunMacro, CountsBeepsAndNamesHelp) {
    EXPECT_EQ(printed(R"(studio.NewProject("$P") studio.Click("RCPE0")
        editor.abr.Click("mnuRecipeDelete")
        print(studio.Beeps(), studio.Beeps())
        editor.abr.Click("mnuRecipeNew") studio.Click("RCPR1")
        studio.OnDialog("FRecipe", function(d) d.cmdHelp.Click() end)
        editor.abr.Click("mnuRecipeEdit")
        local help = studio.Help()
        print(#help, math.type(help[1].context), help[1].file:match("Rezeptsystem.chm")))"),
              "1\t0\n1\tinteger\tRezeptsystem.chm\n");
}

TEST_F(RunMacro, StandsInForComponents) {
    EXPECT_EQ(printed(R"(studio.NewProject("$P") studio.Click("RCPE0")
        editor.mnuOption(7)
        print(studio.Components()[1].progId, studio.Components()[1])
        studio.RegisterComponent("HXProjectReport.Connect", {show = function(...) print("shown", select("#", ...)) end})
        studio.Messages()
        editor.mnuOption(7)
        local c = studio.Components()[1]
        print(c.member, c.arguments[1] ~= nil, #studio.Messages()))"),
              "HXProjectReport.Connect\tnil\nshown\t3\nShow\ttrue\t0\n");
}

TEST_F(RunMacro, ReadsAndWritesTheRegistry) {
    const std::string config = folder_.file("config");
    EXPECT_EQ(printed(R"(print(studio.Registry("SOFTWARE\\Tarnwell", "Common"))
        studio.SetRegistry("SOFTWARE\\Tarnwell", "Common", "/common")
        studio.SetRegistry("SOFTWARE\\Tarnwell", "Number", 5)
        print(studio.Registry("SOFTWARE\\Tarnwell", "common"), studio.Registry("software\\tarnwell", "Number")))",
                      {"--trust", "--config", config.c_str()}),
              "nil\n/common\t5\n");
    EXPECT_EQ(printed(R"(print(studio.Registry("SOFTWARE\\Tarnwell", "Number")))", {"--config", config.c_str()}),
              "5\n");
    EXPECT_EQ(printed(R"(print(studio.Registry("SOFTWARE\\Tarnwell", "Number")))"), "nil\n");
}

TEST_F(RunMacro, QueriesButNeverChangesTheProject) {
    EXPECT_EQ(printed(R"(studio.NewProject("$P")
        local r = project.Query("WITH a AS (SELECT 1 AS x, 'ä' AS y, NULL AS z, 2.5 AS w) SELECT * FROM a")
        print(#r, r[1].x, r[1].y, r[1].z, r[1].z == null, r[1].w)
        print(project.Query(" SELECT 1 AS x ; ")[1].x)
        print(project.Query("-- one\n/* two */ SELECT 2 AS x; -- done\n/* end")[1].x)
        for _, sql in ipairs({"DELETE FROM TrcpRecipe", "ATTACH 'x' AS y", "PRAGMA journal_mode=OFF",
                              "WITH a AS (SELECT 1) DELETE FROM TrcpRecipe", "SELECT * FROM Nowhere"}) do
            print((pcall(project.Query, sql)))
        end)"),
              "1\t1\tä\tnull\ttrue\t2.5\n1\n2\nfalse\nfalse\nfalse\nfalse\nfalse\n");
}

TEST_F(RunMacro, ReplacesTheVariablesWholeOrNotAtAll) {
    EXPECT_EQ(printed(R"(studio.NewProject("$P") studio.SetVariables({"A", "B"})
        print(pcall(studio.SetVariables, {"C", "c"}) == false, pcall(studio.SetVariables, {"D", 1}) == false)
        print(table.concat(studio.Variables(), " "))
        studio.SetVariables({"b", "C"}) print(table.concat(studio.Variables(), " ")))"),
              "true\ttrue\nA B\nB C\n");
}

TEST_F(RunMacro, KeepsObjectsOfAClosedProjectSafe) {
    EXPECT_EQ(printed(R"(studio.NewProject("$P") studio.Click("RCPE0")
        editor.abr.Click("mnuRecipeNew") studio.Click("RCPR1")
        local kept, column, bar, add = editor, editor.tdbRM.Columns, editor.abr, addin
        local dialog
        studio.OnDialog("FRecipe", function(d) dialog = d end)
        editor.abr.Click("mnuRecipeEdit")
        studio.CloseProject()
        print(editor, add.ProjectName, kept.Caption ~= nil, bar.Bands("mnuRecipe").Name)
        print((pcall(kept.MenuSwitcher, "RCPE0", false)), (pcall(bar.Click, "mnuRecipeNew")) ~= nil)
        pcall(dialog.cmdOk.Click) pcall(dialog.cmdHelp.Click) pcall(kept.SwitchGrids, "RCPR1")
        kept, column, bar, dialog, add = nil
        collectgarbage() print("alive", #studio.Messages()))"),
              "nil\tplant\ttrue\tmnuRecipe\ntrue\ttrue\nalive\t1\n");
}

TEST_F(RunMacro, ReadsAndWritesSettings) {
    EXPECT_EQ(printed(R"(studio.NewProject("$P") studio.Click("RCPE0")
        print(editor.inits.ReadAValueFromCInits("SaveOnExit", false))
        editor.inits.WriteAValueToCInits("RequestOnDelete", false)
        print(editor.inits.ReadAValueFromCInits("RequestOnDelete", true), editor.inits.ParamExist("Nothing")))"),
              "true\nfalse\tfalse\n");
    EXPECT_TRUE(std::filesystem::exists(folder_.file("HXEditors.ini")));
}

TEST_F(RunMacro, UsesOtherFilesAndProgramsOnlyWhenTrusted) {
    EXPECT_EQ(printed("print(os.execute, require)"), "nil\tnil\n");
    EXPECT_EQ(printed("print(type(os.execute), type(require))", {"--trust"}), "function\tfunction\n");
    EXPECT_EQ(printed(R"(studio.NewProject("$P")
        local f = io.open("list.txt", "w") f:write("Cola") f:close()
        print(io.open("list.txt"):read(), (pcall(io.open, "/etc/hostname")), (pcall(io.open, "$P", "a"))))"),
              "Cola\tfalse\tfalse\n");
    EXPECT_EQ(contents(folder_.file("list.txt")), "Cola");
}

TEST_F(RunMacro, AnswersAsAUserWhoCancelsOnceAnAnswerHasFailed) {
    const Result result = macro(std::string(newRecipe) + R"(studio.NewProject("$P") newRecipe("Cola")
        studio.Click("RCPE0") editor.inits.WriteAValueToCInits("RequestOnDelete", true) studio.Click("RCPR1")
        studio.OnMessage(function(text) error("no answer") end)
        editor.abr.Click("mnuRecipeDelete"))");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.problems, HasSubstr("no answer"));
    EXPECT_EQ(query(file_, "SELECT Name FROM TrcpRecipe"), "Cola");
}

TEST_F(RunMacro, KeepsWhatWasDoneBeforeItFailed) {
    EXPECT_EQ(macro(std::string(newRecipe) + "studio.NewProject('$P') newRecipe('Cola') error('enough')").status, 1);
    EXPECT_EQ(query(file_, "SELECT Name FROM TrcpRecipe"), "Cola");
}

TEST_F(RunMacro, WritesNumbersAsTheLocaleDoes) {
    for (const auto& [locale, size] : {std::pair{"de_DE", "8,25"}, std::pair{"en-GB", "8.25"}}) {
        EXPECT_EQ(printed(R"(studio.NewProject("$P") studio.Click("RCPE0") editor.Font.Size = 8.25
            editor.inits.WriteAValueToCInits("Me.Font.Size", 8.25))",
                          {"--locale", locale}),
                  "");
        EXPECT_NE(contents(folder_.file("HXEditors.ini")).find(std::string("Me.Font.Size=") + size), std::string::npos);
        std::filesystem::remove(file_);
        std::filesystem::remove(folder_.file("HXEditors.ini"));
    }
}

TEST_F(RunMacro, ChangesTheFontThatTheEditorAsksFor) {
    EXPECT_EQ(printed(R"(studio.NewProject("$P") studio.Click("RCPE0")
        studio.OnFont(function(font) font.Name = "DejaVu Sans" font.Size = 11 end)
        studio.OnDialog("FConfigEditor", function(d)
            d.cmdEditorFont.Click()
            d.cmdOk.Click()
        end)
        editor.abr.Click("mnuOptionOption")
        print(editor.Font.Name, editor.Font.Size)
        studio.OnFont(function(font) font.Name = "Arial" return false end)
        editor.abr.Click("mnuOptionOption")
        print(editor.Font.Name))"),
              "DejaVu Sans\t11.0\nDejaVu Sans\n");
}

}  // namespace

}  // namespace hx::cli
