// SPDX-License-Identifier: MIT

// What the globals of a macro do, one by one; run_macro_test.cpp has the answers and the surroundings.
#include "run_macro_text.h"

namespace hx::cli {

namespace {

using testing::HasSubstr;

struct MacroStudioGlobal : MacroTextTest {
    // What the macro prints that begins in the project with one recipe, which has the variables A, B and C.
    std::string shown(const std::string& text) {
        return printed(std::string(oneRecipe) + "choose('A', 'B', 'C')\n" + text);
    }
};
using MacroGrid = MacroStudioGlobal;
using MacroWindow = MacroStudioGlobal;
using MacroSettings = MacroStudioGlobal;
using MacroControls = MacroStudioGlobal;

TEST_F(MacroStudioGlobal, GivesNodesInTheOrderOfTheTree) {
    EXPECT_EQ(shown(R"(studio.Click("RCPE0") editor.abr.Click("mnuRecipeNew")
        for _, n in ipairs(studio.Nodes()) do print(n.key, n.parent, n.caption, n.image, n.tag) end)"),
              "RCPE0\t\tRezepte\ticoRcpRecipe\t0\n"
              "RCPR1\tRCPE0\tNeues Rezept\ticoRcpRecipe\t\n"
              "RCPU1\tRCPR1\tUnterrezepte\ticoRcpRecipe\t\n"
              "RCPR2\tRCPE0\tNeues Rezept(2)\ticoRcpRecipe\t\n"
              "RCPU2\tRCPR2\tUnterrezepte\ticoRcpRecipe\t\n");
}

TEST_F(MacroStudioGlobal, SelectsNodesWithAndWithoutAnEvent) {
    EXPECT_EQ(shown(R"(
        local function selected() print(studio.Selected(), editor.NodeKey) end
        selected()
        studio.Select("RCPU1") selected()
        studio.Select("") selected()
        studio.DblClick("RCPU1") selected()
        studio.Expand("RCPE0") selected()
        studio.MouseMove("RCPE0", 0, 0, 1, 1) selected()
        studio.MouseDown("RCPR1", 1) selected()
        studio.KeyPress("RCPE0", 65) selected()
        studio.KeyUp("RCPR1", 65, 0) selected()
        studio.Click("RCPU1") selected())"),
              "RCPR1\tRCPR1\nRCPU1\tRCPR1\nnil\tRCPR1\nRCPU1\tRCPU1\nRCPU1\tRCPU1\nRCPU1\tRCPU1\nRCPR1\tRCPR1\n"
              "RCPE0\tRCPE\nRCPR1\tRCPR1\nRCPU1\tRCPU1\n");
}

TEST_F(MacroStudioGlobal, ClicksANodeBeforeItsKeysAndButtons) {
    EXPECT_EQ(shown(R"(studio.Click("RCPE0") editor.abr.Click("mnuRecipeNew") editor.abr.Click("mnuRecipeNew")
        studio.OnMessage(function() print(editor.Caption, studio.Selected()) return "yes" end)
        studio.OnPopup(function() return "mnuRecipeDelete" end)
        studio.Click("RCPR1") studio.KeyDown("RCPR3", 46, 2)
        studio.Click("RCPR1") studio.MouseUp("RCPR2", 2)
        studio.Click("RCPE0") studio.Select("RCPR1") studio.KeyDown("RCPR1", 46, 2)
        print(#studio.Nodes()))"),
              "HelvixStudio Rezepteditor: Neues Rezept(3)\tRCPR3\n"
              "HelvixStudio Rezepteditor: Neues Rezept(2)\tRCPR2\n"
              "HelvixStudio Rezepteditor: Neues Rezept\tRCPR1\n1\n");
}

TEST_F(MacroStudioGlobal, ClicksANodeOnceForAllItsKeys) {
    EXPECT_EQ(shown(R"(studio.Click("RCPE0") studio.Click("RCPR1") editor.NodeKey = "RCPE"
        studio.KeyDown("RCPR1", 65) studio.KeyUp("RCPR1", 65) print(editor.NodeKey)
        studio.Click("RCPR1") print(editor.NodeKey))"),
              "RCPE\nRCPR1\n");
}

TEST_F(MacroStudioGlobal, BringsTheEditorToTheFrontByADoubleClickAndByF6) {
    EXPECT_EQ(shown(R"(editor.Hide() studio.DblClick("RCPR1") print(editor.Visible)
        editor.Hide() studio.KeyDown("RCPU1", 117) print(editor.Visible, editor.NodeKey)
        editor.WindowState = 1 studio.KeyDown("RCPU1", 117, 4) print(editor.WindowState))"),
              "true\ntrue\tRCPU1\n0\n");
}

TEST_F(MacroStudioGlobal, SendsTheOtherEventsOfTheStudio) {
    EXPECT_EQ(shown(R"(
        studio.StartupComplete() studio.Deactivate()
        print(studio.GetMessage("Studio", "Any", 5), studio.GetMessage("Studio", "Any"))
        print(#studio.Nodes(), #studio.Messages()))"),
              "nil\tnil\n3\t0\n");
}

TEST_F(MacroStudioGlobal, CallsTheEventsByTheNamesOfTheInterfaceToo) {
    EXPECT_EQ(shown(R"(
        studio.NodeClick("RCPU1") print(editor.NodeKey)
        studio.NodeExpand("RCPE0") studio.NodeDblClick("RCPR1") print(studio.Selected())
        studio.NodeKeyDown("RCPR1", 67, 2) print(studio.Beeps())
        studio.NodeMouseDown("RCPU1", 1) studio.NodeMouseMove("RCPR1", 0) studio.NodeKeyUp("RCPU1", 67)
        studio.NodeKeyPress("RCPR1", 99) print(studio.Selected())
        studio.NodeMouseUp("RCPE0", 2, 0, 15, 15) print(studio.Popups()[1]))"),
              "RCPU1\nRCPR1\n1\nRCPR1\nmnuRecipe\n");
}

TEST_F(MacroStudioGlobal, AsksForMessagesDialogsAndPopUpsInOrder) {
    EXPECT_EQ(
        shown(R"(
        studio.OnMessage(function(text, title, buttons, default) print(text, title, #buttons, default) return "no" end)
        studio.OnPopup(function(band) return "mnuRecipeDelete" end)
        studio.MouseUp("RCPR1", 2)
        print(studio.Messages()[1].answer, studio.Popups()[1]))"),
        "Wollen Sie wirklich das selektierte Rezept und alle darin enthaltenen Elemente löschen ?\tHXRecipeEditor\t2\t"
        "no\nno\tmnuRecipe\n");
}

TEST_F(MacroStudioGlobal, ForgetsWhatHasBeenAskedFor) {
    EXPECT_EQ(shown(R"(
        editor.abr.Click("mnuRecipeDelete") studio.MouseUp("RCPR1", 2) studio.KeyDown("RCPR1", 67, 2)
        studio.KeyDown("RCPR1", 112) editor.abr.Click("mnuOptionReport")
        print(#studio.Messages(), #studio.Popups(), studio.Beeps(), #studio.Help(), #studio.Components())
        print(#studio.Messages(), #studio.Popups(), studio.Beeps(), #studio.Help(), #studio.Components()))"),
              "2\t1\t1\t1\t1\n0\t0\t0\t0\t0\n");
}

TEST_F(MacroStudioGlobal, MakesNoProjectWithoutAName) {
    const std::string folder = folder_.file("");
    for (const std::string& path : {std::string(), folder, folder + ".hxs", folder + ".HXS"}) {
        EXPECT_EQ(printed("print(select(2, pcall(studio.NewProject, '" + path + "')).description)"),
                  "The path '" + path + "' names no file\n");
    }
    EXPECT_FALSE(std::filesystem::exists(folder + ".hxs"));
    EXPECT_FALSE(std::filesystem::exists(".hxs"));
}

// A settings file that cannot be read makes the editor say so while it closes.
TEST_F(MacroStudioGlobal, OpensNoProjectFromTheAnswerToOneThatIsClosing) {
    EXPECT_EQ(shown(""), "");
    std::filesystem::remove(folder_.file("HXEditors.ini"));
    std::filesystem::create_directory(folder_.file("HXEditors.ini"));
    EXPECT_EQ(printed(R"(studio.Click("RCPE0") studio.Messages()
        studio.OnMessage(function()
            for _, change in ipairs({studio.CloseProject, studio.NewProject, studio.OpenProject}) do
                print(select(2, pcall(change, "$P")).description)
            end
        end)
        studio.CloseProject()
        print(addin, #studio.Nodes(), #studio.Messages())
        studio.OnMessage(nil)
        studio.OpenProject("$P") print(#studio.Nodes()))",
                      {"--project", file_.c_str()}),
              "A project is being opened or closed\nA project is being opened or closed\n"
              "A project is being opened or closed\nnil\t0\t1\n1\n");
}

TEST_F(MacroStudioGlobal, NamesTheHelpFileAndItsContext) {
    EXPECT_EQ(
        printed(R"(studio.SetRegistry("SOFTWARE\\Tarnwell", "Common", "/shared")
        studio.NewProject("$P") studio.Click("RCPE0") studio.KeyDown("RCPE0", 112)
        local help = studio.Help()[1]
        print(help.file, help.context))"),
        "/shared" + std::filesystem::path("/helpfiles/Rezeptsystem.chm").make_preferred().string() + "\t100001\n");
}

TEST_F(MacroStudioGlobal, GivesTheArgumentsOfComponents) {
    EXPECT_EQ(shown(R"(
        studio.RegisterComponent("HXRecipeServerConfig.Connect",
                                 {Show = function(path, window) print(path == "$P", window == editor.hWnd) end})
        editor.abr.Click("mnuOptionConfiguration")
        local call = studio.Components()[1]
        print(call.progId, call.member, #call.arguments, call.arguments[2] == editor.hWnd))"),
              "true\ttrue\nHXRecipeServerConfig.Connect\tShow\t2\ttrue\n");
}

TEST_F(MacroStudioGlobal, IsTheAddInOfTheOpenProject) {
    EXPECT_EQ(shown(R"(print(addin.ProjectName, addin.ProjectPath == "$P", addin.LanguageChanged, addin.Text1)
        addin.Text1, addin.Text2, addin.Text3 = "a", "b", "c"
        print(addin.Text1 .. addin.Text2 .. addin.Text3, addin.HostValue ~= 0, addin.Explorer.SelectedKey)
        addin.SelectNode("RCPU1") print(editor.NodeKey)
        addin.ShowSelectedNode() print(editor.NodeKey)
        local before = editor
        addin.OpenEditor() print(editor == before)
        addin.RefreshView() print(editor == before, editor.NodeKey, #studio.Nodes()))"),
              "plant\ttrue\ttrue\t\nabc\ttrue\tRCPR1\nRCPU1\nRCPR1\ntrue\nfalse\tRCPE0\t3\n");
}

TEST_F(MacroGrid, ShowsCellsAndTheirValues) {
    EXPECT_EQ(shown(R"(local g = editor.tdbRM
        print(g.RowCount, g.ColumnCount, g.Row)
        for i = 0, 3 do print(g.Columns(i).DataField, g.Columns(i).Caption, g.Columns(i).Order, g.Columns(i).Visible) end
        print(g.Text(1, "VarRecipe"), g.Text(1, 2), g.Value(1, "ID"), math.type(g.Value(1, 0)), g.Text(1, "ChildID"))
        g.Row = 2 print(g.Row, g.Bookmark ~= null)
        g.Columns("ChildID").Order = 0 g.Columns("ChildID").Width = 500 g.Columns("ChildID").Visible = false
        print(g.Columns(3).Order, g.Columns(3).Width, g.Columns(3).Visible)
        g.Splits(0).Size = 1200 print(g.Splits(0).Size))"),
              "3\t4\t0\n"
              "ID\tID\t0\tfalse\nParentID\tParentID\t1\tfalse\nVarRecipe\tVariable\t2\ttrue\n"
              "ChildID\tUnterrezept\t3\tfalse\n"
              "B\tB\t2\tinteger\t\n2\ttrue\n0\t500.0\tfalse\n1200.0\n");
}

TEST_F(MacroGrid, IsEditedAndSorted) {
    EXPECT_EQ(shown(R"(local g = editor.tdbRM
        studio.SetVariables({"A", "B", "C", "D"})
        g.SetText(0, "VarRecipe", "D") print(g.DataChanged, g.Text(0, "VarRecipe"))
        g.Update() print(g.DataChanged, project.Query("SELECT VarRecipe FROM TrcpRecipeMember")[1].VarRecipe)
        g.SetText(0, "VarRecipe", "E") g.CancelUpdate() print(g.Text(0, "VarRecipe"))
        g.HeadClick("VarRecipe") print(g.SortText, g.Text(0, "VarRecipe"), g.Text(2, "VarRecipe")))"),
              "true\tD\nfalse\tD\nD\nVarRecipe\tB\tD\n");
}

TEST_F(MacroGrid, SelectsRowsByNumberAndByKeys) {
    EXPECT_EQ(shown(R"(local g = editor.tdbRM
        g.SelectRows({0, 2}) print(g.SelectedCount, g.SelectedRows.Count)
        g.SelectRows({}) print(g.SelectedCount)
        g.Row = 0
        print(g.KeyDown(40, 1), g.SelectedCount, g.MultiSelect)
        print(g.KeyDown(37, 1), g.KeyDown(37, 4))
        print(g.KeyDown(38, 0), g.MultiSelect))"),
              "2\t2\n0\ntrue\t1\t2\ntrue\ttrue\nfalse\t1\n");
}

TEST_F(MacroGrid, OpensTheChoiceOfAVariableByButtonAndKeys) {
    EXPECT_EQ(shown(R"(local g = editor.tdbRM
        local asked = 0
        studio.OnItemSelection(function(current) asked = asked + 1 return "" end)
        g.ButtonClick(1, "VarRecipe") g.ButtonClick(1, "ChildID")
        g.Row = 0 g.KeyDown(120, 0)
        g.Col = 2 print(g.KeyPress(32)) g.Col = 3 print(g.KeyPress(32))
        print(asked, g.DataChanged)
        g.Col = 3 g.KeyUp(37, 1) print(g.Col))"),
              "true\nfalse\n3\tfalse\n2\n");
}

TEST_F(MacroGrid, TakesTheMouse) {
    EXPECT_EQ(shown(R"(local g = editor.tdbRM
        g.MouseDown(2, 0, 100, 100) g.MouseMove(2, 0, 110, 100) g.MouseUp(2, 0, 110, 100)
        print(studio.Popups()[1], g.HasFocus)
        g.MouseDown(1, 0, 100, 100) print(g.HasFocus)
        studio.Click("RCPE0") g.Click() g.DblClick() print(#studio.Messages()))"),
              "mnuRecipeMember\tfalse\ntrue\n0\n");
}

TEST_F(MacroWindow, RunsItsOperations) {
    EXPECT_EQ(shown(R"(
        editor.MakeMyCaption("RCPR", "x") print(editor.Caption)
        editor.MakeMyCaption("RCPE0", "x") print(editor.Caption)
        editor.SwitchGrids("XXXX1") print(editor.tdbRM.Visible, editor.tdbRM.TabStop)
        editor.SwitchGrids("RCPR1") print(editor.tdbRM.Visible, editor.tdbRM.TabStop)
        editor.tdbRM.SetText(0, "VarRecipe", "Z") editor.VerifyAdds()
        print(editor.tdbRM.DataChanged, project.Query("SELECT VarRecipe FROM TrcpRecipeMember")[1].VarRecipe)
        local tools = editor.abr.Bands("mnuMain")
        editor.MenuSwitcher("RCPE0", false) print(tools.Tools("mnuRecipeNew").Enabled, tools.ToolCount)
        editor.MenuSwitcher("RCPE0", true) print(tools.Tools("mnuRecipeDescriptor").Visible, tools.ToolCount)
        editor.MenuSwitcher("RCPE0", false) print(tools.Tools("mnuRecipeDescriptor").Visible, tools.ToolCount)
        editor.sb.Visible = false editor.abr_Resize() editor.MenuSwitcher("RCPR1", false)
        print(tools.Tools("mnuOptionStatistik").Enabled)
        editor.PosLeft = 300 print(editor.PosLeft))"),
              "HelvixStudio Rezepteditor: x\nHelvixStudio Rezepteditor\nfalse\tfalse\ntrue\ttrue\nfalse\tZ\n"
              "true\t3\ntrue\t5\nfalse\t3\nfalse\n300.0\n");
}

TEST_F(MacroWindow, RunsCommandsByToolNumberAndButton) {
    EXPECT_EQ(shown(R"(
        editor.abr_ToolClick("mnuOptionStatistik") print(editor.sb.Panels(2).Text, editor.sb.Panels(3).Text)
        for _, index in ipairs({1, 3, 4}) do editor.mnuOption(index) end
        studio.Click("RCPE0") editor.tbrfunc.Click("New") editor.mnuRecipeFunc(0)
        editor.mnuOption(0) print(editor.sb.Panels(2).Text, #studio.Messages())
        print(editor.tbrfunc.Buttons("Edit").Enabled, editor.tbrfunc.ButtonCount))"),
              "Rezepte:1\tRezeptelemente3\nRezepte:3\t0\nfalse\t4\n");
}

TEST_F(MacroWindow, HasToolsWithCaptionsAndShortcuts) {
    EXPECT_EQ(shown(R"(local band = editor.abr.Bands("mnuRecipe")
        studio.MouseUp("RCPR1", 2)
        for i = 0, band.ToolCount - 1 do
            local tool = band.Tools(i)
            print(tool.Name, tool.Caption, tool.Category, tool.Enabled, tool.Visible, tool.Shortcut)
        end)"),
              "mnuRecipeDescriptor\tRezept\t\ttrue\tfalse\t\n"
              "mnuRecipeNew\t&Neu\tNew\tfalse\tfalse\t\n"
              "mnuRecipeEdit\t&Bearbeiten\tEdit\ttrue\ttrue\tF9\n"
              "mnuRecipeDelete\t&Löschen\tDelete\ttrue\ttrue\tControl+Delete\n");
}

TEST_F(MacroSettings, AreReadWrittenAndAppliedByPath) {
    EXPECT_EQ(shown(R"(local inits = editor.inits
        print(inits.ReadAValueFromCInits("SaveOnExit", false), inits.ReadAValueFromCInits("None", "d"))
        inits.WriteAValueToCInits("My.Own", 5)
        print(inits.ReadAValueFromCInits("my.own", 0), inits.ParamExist("MY.OWN"))
        inits.DeleteAValueInCInits("My.Own") print(inits.ParamExist("My.Own"))
        inits.WriteAValueToCInits('tdbRM.Columns("VarRecipe").Width', 1111.4) inits.SetInitToControl("tdbRM")
        print(editor.tdbRM.Columns("VarRecipe").Width)
        editor.tdbRM.Columns("VarRecipe").Width = 1500 inits.GetInitFromControl("tdbRM")
        print(inits.ReadAValueFromCInits('tdbRM.Columns("VarRecipe").Width', 0))
        print(inits.Motherobject == editor)
        inits.WriteAValueToCInits("sb.Visible", false) inits.SetInitToMotherObject() print(editor.sb.Visible))"),
              "true\td\n5\ttrue\nfalse\n1111.0\n1500.0\ntrue\nfalse\n");
}

TEST_F(MacroSettings, AreWrittenToTheFileAndReadFromIt) {
    EXPECT_EQ(shown(R"(local inits = editor.inits
        local function line(key)
            for text in io.lines("HXEditors.ini") do
                if text:sub(1, #key + 1) == key .. "=" then return (text:gsub("\r", "")) end
            end
        end
        inits.WriteToIni("SaveOnExit", "False") print(line("SaveOnExit"), (line("RequestOnDelete")))
        inits.LoadInits(editor.SettingsFile) print(inits.ReadAValueFromCInits("SaveOnExit", true))
        inits.WriteAValueToCInits("RequestOnDelete", false) inits.SaveInits("")
        print(line("RequestOnDelete"))
        inits.LoadDefaultInit("frmtabGridRCP") print(inits.ReadAValueFromCInits("SaveOnExit", false)))"),
              "SaveOnExit=False\tnil\nfalse\nRequestOnDelete=False\ntrue\n");
}

TEST_F(MacroSettings, AreATree) {
    EXPECT_EQ(
        shown(R"(local tree = editor.inits.itms
        local names, each = {}, tree.NewEnum()
        local item = each.Next()
        while item do names[#names + 1] = item.Name item = each.Next() end
        print(tree.Count, table.concat(names, " "))
        print(tree.Item("me").itms.Item("Font").itms.Item("Size").val, tree.Item(1).Name, tree.Item("None"))
        local added = tree.Add("Own", 5, 0) print(added.Name, added.val, added.Index, added.itms.Count)
        added.val = "x" print(editor.inits.ReadAValueFromCInits("Own", ""))
        tree.Delete("Own") print(tree.Item("Own"), (pcall(tree.Delete, "Own")))
        tree.Item("sb").itms.Clear() print(tree.Item("sb").itms.Count))"),
        "7\tMe tdbRM tdbRMColOrders sb SaveOnExit RequestOnDelete LoadOnForeGround\n8.25\tMe\tnil\nOwn\t5\t0\t0\nx\n"
        "nil\tfalse\n0\n");
}

TEST_F(MacroControls, OfDialogsAreUsedLikeByHand) {
    EXPECT_EQ(shown(R"(studio.OnDialog("FRecipe", function(d)
            print(d.Caption, d.tab.Tab, d.tab.TabCaption(0), d.tab.TabCaption(2))
            d.tab.Tab = 1 print(d.tab.Tab)
            print(d.chkEnabled.Value, d.chkEnabled.Click(), d.chkEnabled.Value)
            d.chkEnabled.Value = 2 print(d.chkEnabled.Value) d.chkEnabled.Value = 0
            print(d.optRecipeAbsrel(0).Value, d.optRecipeAbsrel(1).Click(), d.optRecipeAbsrel(0).Value)
            d.optRecipeAbsrel[0].Value = true print(d.optRecipeAbsrel(1).Value, d.txtStandardValue.Text)
            print(d.cboFilePath.ListCount, d.cboFilePath.List(0), d.cboFilePath.ListIndex)
            d.cboFilePath.ListIndex = 0 print(d.cboFilePath.Text)
            d.txtName.SetFocus() print(d.txtName.HasFocus, d.txtComment.HasFocus)
            print(d.txtName.Container == d.tab or d.txtName.Container ~= nil, d.Cancelled)
            print(d.KeyDown(13, 0), d.Visible)
        end)
        editor.abr.Click("mnuRecipeEdit"))"),
              "Rezeptdefinition\t0\tStandard\tOptionen\n1\n0\tnil\t1\n2\ntrue\tnil\tfalse\nfalse\t0\n"
              "1\t<ProjectDir>\t-1\n<ProjectDir>\ntrue\tfalse\ntrue\ttrue\ntrue\tfalse\n");
}

TEST_F(MacroControls, ListTheRecipesWithTheirNumbers) {
    EXPECT_EQ(shown(R"(studio.Click("RCPE0") editor.abr.Click("mnuRecipeNew") studio.Click("RCPU2")
        studio.OnDialog("FSubRecipe", function(d)
            local list = d.cmbChooseRecipe
            for i = 0, list.ListCount - 1 do print(i, list.List(i), list.ItemData(i)) end
            print(list.ListIndex, list.Text)
            list.ListIndex = 1 print(list.Text)
            list.ItemData[1] = 7 print(list.ItemData(1))
            d.cmdCancel.Click() print(d.Visible)
        end)
        editor.abr.Click("mnuRecipeMemberNewRecipe"))"),
              "0\tNeues Rezept\t1\n1\tNeues Rezept(2)\t2\n0\tNeues Rezept\nNeues Rezept(2)\n7\nfalse\n");
}

TEST_F(MacroControls, ThatAreLeftOpenAreClosedByTheFrame) {
    EXPECT_EQ(shown(R"(local dialog
        studio.OnDialog("frecipe", function(d) d.txtName.Text = "Other" dialog = d end)
        editor.abr.Click("mnuRecipeEdit")
        print(dialog.Visible, dialog.Cancelled, project.Query("SELECT Name FROM TrcpRecipe")[1].Name))"),
              "false\ttrue\tNeues Rezept\n");
}

TEST_F(MacroControls, OfTheChoiceOfVariablesCountAsConfirmedWhenTheFrameClosesIt) {
    EXPECT_EQ(shown(R"(local function count() print(#project.Query("SELECT * FROM TrcpRecipeMember")) end
        studio.OnDialog("FMultiSelectItems", function(d) d.hxMI.Unselect("B") end)
        editor.abr.Click("mnuRecipeMemberNewVariable") count()
        studio.OnDialog("FMultiSelectItems", function(d) d.hxMI.SelectedItems = nil d.cmdCancel.Click() end)
        editor.abr.Click("mnuRecipeMemberNewVariable") count())"),
              "2\n2\n");
}

TEST_F(MacroControls, MoveTheSplitBar) {
    EXPECT_EQ(shown(R"(local bar, grid = editor.pctrcpTabSplit, editor.tdbRM
        bar.MouseDown(1, 0, 0, 0) bar.MouseMove(1, 0, 1000, 0) bar.MouseUp(1, 0, 0, 0)
        print(grid.Splits(0).Size == bar.Left - grid.Left - 30)
        local at = bar.Left
        bar.MouseDown(2, 0, 0, 0) bar.MouseMove(2, 0, 500, 0) bar.MouseUp(2, 0, 0, 0) print(bar.Left == at))"),
              "true\ntrue\n");
}

}  // namespace

}  // namespace hx::cli
