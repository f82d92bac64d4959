// SPDX-License-Identifier: MIT

// What fails in a macro, and how the macro and its caller learn of it.
#include "run_macro_text.h"

namespace hx::cli {

namespace {

using testing::HasSubstr;

constexpr const char* unknownName = "-2147352570";
constexpr const char* cannotBeAssigned = "-2147352573";
constexpr const char* wrongType = "-2147352571";
constexpr const char* overflow = "-2147352566";
constexpr const char* badIndex = "-2147352565";
constexpr const char* wrongCount = "-2147352562";

class MacroErrors : public MacroTextTest {
  protected:
    // The number and the description of what a statement raises in a project with one recipe that has three variables.
    std::string raised(const std::string& statement) {
        std::filesystem::remove(file_);
        return printed(std::string(oneRecipe) + R"(choose("A", "B", "C")
            local function inDialog(work)
                studio.OnDialog("FRecipe", work)
                editor.abr.Click("mnuRecipeEdit")
            end
            local ok, e = pcall(function() )" +
                       statement + R"( end)
            if ok then print("nothing") else print(e.number, e.description) end)");
    }
    // The same of a statement without a project.
    std::string raisedAlone(const std::string& statement) {
        return printed("local ok, e = pcall(function() " + statement +
                       " end) if ok then print('nothing') else print(e.number, e.description) end");
    }
};

struct Failure {
    const char* statement;
    const char* number;
    const char* description;
};

TEST_F(MacroErrors, CarryNumberAndDescription) {
    const std::vector<Failure> failures = {
        {"return editor.Nonsense", unknownName, "frmtabgrid has no member \"Nonsense\""},
        {"editor.Nonsense = 1", unknownName, "frmtabgrid has no member \"Nonsense\""},
        {"inDialog(function(d) d.txtNonsense.Text = '' end)", unknownName, "FRecipe has no member \"txtNonsense\""},
        {"editor.tdbRM.RowCount = 1", cannotBeAssigned, "Grid.RowCount cannot be assigned"},
        {"editor.VerifyAdds = 1", cannotBeAssigned, "frmtabgrid.VerifyAdds cannot be assigned"},
        {"editor.tdbRM = nil", cannotBeAssigned, "tdbRM is a control and cannot be assigned"},
        {"editor.Width = 'wide'", wrongType, "Type mismatch: \"wide\" is not a number"},
        {"editor.Caption = editor", wrongType, "Type mismatch: text expected"},
        {"editor.tdbRM.SelectRows('x')", wrongType, "Type mismatch: \"x\" is not a number"},
        {"editor.WindowState = 7", overflow, "Overflow: no such value"},
        {"editor.mnuOption(70000)", overflow, "Overflow"},
        {"inDialog(function(d) d.chkEnabled.Value = 5 end)", overflow, "Overflow: no such value"},
        {"return editor.sb.Panels(4)", badIndex, "sb has no item \"4\""},
        {"return editor.sb.Panels(0)", badIndex, "sb has no item \"0\""},
        {"return editor.tdbRM.Text(3, 'VarRecipe')", badIndex, "tdbRM has no item \"3\""},
        {"return editor.tdbRM.Text(0, 'Colour')", badIndex, "tdbRM has no item \"Colour\""},
        {"editor.tdbRM.Row = 9", badIndex, "tdbRM has no item \"9\""},
        {"editor.tdbRM.SelectRows({0, 5})", badIndex, "tdbRM has no item \"5\""},
        {"editor.tdbRM.HeadClick('Colour')", badIndex, "tdbRM has no item \"Colour\""},
        {"return editor.tdbRM.Splits(2)", badIndex, "tdbRM has no item \"2\""},
        {"return editor.abr.Bands('x')", badIndex, "abr has no item \"x\""},
        {"editor.abr.Click('x')", badIndex, "abr has no item \"x\""},
        {"inDialog(function(d) d.cboFilePath.ListIndex = 5 end)", badIndex, "cboFilePath has no item \"5\""},
        {"inDialog(function(d) return d.cboFilePath.List(1) end)", badIndex, "cboFilePath has no item \"1\""},
        {"inDialog(function(d) d.cmdChooseItem(7).Click() end)", badIndex, "cmdChooseItem has no item \"7\""},
        {"editor.inits.GetInitFromControl('None')", badIndex, "CInit has no item \"None\""},
        {"editor.inits.DeleteAValueInCInits('None')", badIndex, "CInitItems has no item \"None\""},
        {"editor.SwitchGrids()", wrongCount, "Invalid number of arguments"},
        {"editor.MenuSwitcher('RCPR1')", wrongCount, "Invalid number of arguments"},
        {"editor.inits.LoadDefaultInit('None')", "326", "There is no resource \"None\" of type INITS"},
    };
    for (const auto& [statement, number, description] : failures) {
        EXPECT_EQ(raised(statement), std::string(number) + "\t" + description + "\n") << statement;
    }
}

TEST_F(MacroErrors, OfTheStudiosFunctionsNameTheArgument) {
    for (const char* name :
         {"NewProject", "OpenProject", "Select", "Click", "DblClick", "Expand", "MouseDown", "MouseMove", "MouseUp",
          "KeyDown", "KeyUp", "KeyPress", "NodeClick", "NodeMouseUp", "NodeKeyDown", "OnDialog"}) {
        for (const char* given : {"", "1", "{}", "null", "print"}) {
            const std::string call = std::string("studio.") + name + "(" + given + ")";
            EXPECT_THAT(raised(call), testing::StartsWith(std::string(wrongType) + "\tType mismatch: ")) << call;
        }
    }
    for (const char* name : {"OnMessage", "OnItemSelection", "OnPathSelection", "OnFont", "OnPopup"}) {
        for (const char* given : {"1", "{}", "null", "'x'"}) {
            const std::string call = std::string("studio.") + name + "(" + given + ")";
            EXPECT_EQ(raised(call), std::string(wrongType) + "\tType mismatch: a function expected\n") << call;
        }
    }
}

TEST_F(MacroErrors, OfNodesThatDoNotExistNameTheKey) {
    for (const char* name : {"Select", "Click", "DblClick", "Expand", "MouseDown", "MouseMove", "MouseUp", "KeyDown",
                             "KeyUp", "KeyPress"}) {
        EXPECT_EQ(raised(std::string("studio.") + name + "('RCPR7')"),
                  std::string(badIndex) + "\tExplorer has no item \"RCPR7\"\n");
    }
}

TEST_F(MacroErrors, OfFunctionsThatNeedAProjectSayThatNoneIsOpen) {
    for (const char* call :
         {"studio.Click('RCPE0')", "studio.Expand('RCPE0')", "studio.MouseUp('RCPE0', 2)", "studio.KeyDown('RCPE0', 1)",
          "studio.StartupComplete()", "studio.Deactivate()", "studio.GetMessage('a', 'b')", "studio.Variables()",
          "studio.SetVariables({})", "project.Query('SELECT 1')"}) {
        EXPECT_EQ(raisedAlone(call), "-2147467259\tNo project is open\n") << call;
    }
    EXPECT_EQ(raisedAlone("studio.Select('RCPE0')"), std::string(badIndex) + "\tExplorer has no item \"RCPE0\"\n");
    EXPECT_EQ(raisedAlone("studio.CloseProject() studio.Nodes() studio.Messages()"), "nothing\n");
    EXPECT_EQ(problem("\nreturn editor.Caption"), "2: attempt to index a nil value (global 'editor')");
}

TEST_F(MacroErrors, OfTheOtherFunctionsSayWhatIsExpected) {
    const std::string mismatch = std::string(wrongType) + "\tType mismatch: ";
    EXPECT_EQ(raised("studio.OnDialog('FNothing', print)"),
              std::string(badIndex) + "\tOnDialog has no item \"FNothing\"\n");
    EXPECT_EQ(raised("studio.OnDialog('FRecipe', 1)"), mismatch + "a function expected\n");
    EXPECT_EQ(raised("studio.SetVariables()"), mismatch + "a list expected\n");
    EXPECT_EQ(raised("studio.SetVariables('A')"), mismatch + "a list expected\n");
    EXPECT_EQ(raised("studio.SetVariables({A = 1})"), mismatch + "a list expected\n");
    EXPECT_EQ(raised("studio.SetVariables({'A', ''})"), mismatch + "the name of a variable must be a text\n");
    EXPECT_EQ(raised("studio.SetVariables({'A', null})"), mismatch + "the name of a variable must be a text\n");
    EXPECT_EQ(raised("studio.RegisterComponent('A.B')"), mismatch + "a table with names expected\n");
    EXPECT_EQ(raised("studio.RegisterComponent('A.B', {Show = 1})"), mismatch + "a function expected\n");
    EXPECT_THAT(raised("studio.Registry('SOFTWARE')"), testing::StartsWith(mismatch + "argument 2"));
    EXPECT_THAT(raised("studio.SetRegistry('SOFTWARE', 'Value')"), testing::StartsWith(mismatch + "argument 3"));
    EXPECT_THAT(raised("studio.SetRegistry('SOFTWARE', 'Value', {})"), testing::StartsWith(mismatch));
    EXPECT_THAT(raised("studio.MouseUp('RCPR1', 'left')"), testing::StartsWith(mismatch));
    EXPECT_EQ(raised("studio.MouseUp('RCPR1', 70000)"), std::string(overflow) + "\tOverflow\n");
    EXPECT_EQ(raised("studio.KeyDown('RCPR1', 70000)"), std::string(overflow) + "\tOverflow\n");
}

TEST_F(MacroErrors, OfAQueryAreThoseOfTheDatabase) {
    EXPECT_EQ(raised("project.Query()"), std::string(wrongType) + "\tType mismatch: argument 1 must be a text\n");
    EXPECT_EQ(raised("project.Query('')"), "-2147467259\tQuery takes a SELECT statement\n");
    EXPECT_EQ(raised("project.Query('DROP TABLE TrcpRecipe')"), "-2147467259\tQuery takes a SELECT statement\n");
    EXPECT_EQ(raised("project.Query('SELECT')"), "-2147217900\tThe command cannot be carried out: incomplete input.\n");
    EXPECT_THAT(raised("project.Query('SELECT * FROM Nowhere')"), HasSubstr("Nowhere"));
    EXPECT_EQ(raised("project.Query('SELECT 1; SELECT 2')"),
              "-2147467259\tQuery takes one statement; another follows\n");
}

TEST_F(MacroErrors, ThatAreNotCaughtEndTheMacroWithPlaceAndTraceback) {
    const Result result = macro(
        "studio.NewProject('$P')\n"
        "local function open()\n"
        "  studio.Click('RCPR9')\n"
        "end\n"
        "open()\n"
        "print('not reached')");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.results, "");
    EXPECT_THAT(result.problems, testing::StartsWith("hxrecipe: " + macro_ +
                                                     ":3: -2147352565: Explorer has no item \"RCPR9\"\n"
                                                     "stack traceback:\n"));
    EXPECT_THAT(result.problems, HasSubstr(macro_ + ":3: in local 'open'"));
    EXPECT_THAT(result.problems, HasSubstr(macro_ + ":5: in main chunk"));
}

TEST_F(MacroErrors, CanBeRaisedByTheMacroItself) {
    EXPECT_EQ(problem("\nerror('enough')"), "2: enough");
    EXPECT_EQ(problem("error({})").substr(0, 16), "hxrecipe: table:");
    EXPECT_EQ(problem("error()"), "hxrecipe: nil");
    EXPECT_EQ(problem("error('only this', 0)"), "hxrecipe: only this");
}

TEST_F(MacroErrors, OfTheTextNameItsLine) {
    const Result result = macro("print('x')\nif then");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.results, "");
    EXPECT_EQ(result.problems, "hxrecipe: " + macro_ + ":2: unexpected symbol near 'then'\n");
}

// Where a function answers the editor, the error comes out of the call that made the editor ask.
struct Answer {
    const char* function;
    const char* work;
};

TEST_F(MacroErrors, InAnswersEndTheMacroWithTheTracebackOfTheAnswer) {
    const std::vector<Answer> answers = {
        {"OnMessage(fail)", "editor.abr.Click('mnuRecipeDelete')"},
        {"OnDialog('FRecipe', fail)", "editor.abr.Click('mnuRecipeEdit')"},
        {"OnDialog('FConfigEditor', fail)", "editor.abr.Click('mnuOptionOption')"},
        {"OnPopup(fail)", "studio.MouseUp('RCPR1', 2)"},
        {"OnItemSelection(fail)", "editor.tdbRM.ButtonClick(0, 'VarRecipe')"},
        {"OnPathSelection(fail)",
         "studio.OnDialog('FRecipe', function(d) d.cmdChoosePath.Click() end) editor.abr.Click('mnuRecipeEdit')"},
        {"OnFont(fail)",
         "studio.OnDialog('FConfigEditor', function(d) d.cmdEditorFont.Click() d.cmdOk.Click() end) "
         "editor.abr.Click('mnuOptionOption')"},
        {"RegisterComponent('HXProjectReport.Connect', {Show = fail})", "editor.abr.Click('mnuOptionReport')"},
    };
    for (const auto& [function, work] : answers) {
        std::filesystem::remove(file_);
        const Result result =
            macro(std::string(oneRecipe) + "choose('A')\nlocal function fail() error('oops') end\nstudio." + function +
                  "\n" + work + "\nprint('not reached')");
        EXPECT_EQ(result.status, 1) << function;
        EXPECT_EQ(result.results, "") << function;
        EXPECT_THAT(result.problems, HasSubstr("oops\nstack traceback:\n")) << function;
        EXPECT_THAT(result.problems, HasSubstr("in function 'error'")) << function;
        EXPECT_EQ(query(file_, "SELECT Name FROM TrcpRecipe"), "Neues Rezept") << function;
        EXPECT_EQ(query(file_, "SELECT VarRecipe FROM TrcpRecipeMember"), "A") << function;
    }
}

TEST_F(MacroErrors, InAnswersCanBeCaughtWhereTheEditorWasAsked) {
    EXPECT_EQ(printed(std::string(oneRecipe) + R"(
        studio.OnMessage(function() error({code = 5}) end)
        local ok, e = pcall(editor.abr.Click, "mnuRecipeDelete")
        print(ok, e.code, #studio.Nodes())
        studio.OnMessage(function() return "yes" end)
        editor.abr.Click("mnuRecipeDelete")
        print(#studio.Nodes()))"),
              "false\t5\t3\n1\n");
}

TEST_F(MacroErrors, InTheChoiceOfVariablesLeaveAllMembers) {
    const Result result = macro(std::string(oneRecipe) + R"(
        choose("A")
        studio.Click("RCPU1")
        studio.OnDialog("FSubRecipe", function(d) d.txtVarRecipe.Text = "B" d.cmdOk.Click() end)
        editor.abr.Click("mnuRecipeMemberNewRecipe")
        studio.Click("RCPR1")
        studio.OnDialog("FMultiSelectItems", function(d) d.hxMI.SelectedItems = {"C"} error("oops") end)
        editor.abr.Click("mnuRecipeMemberNewVariable"))");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(query(file_, "SELECT VarRecipe, ChildID FROM TrcpRecipeMember ORDER BY ID"), "A|0,B|1");
}

TEST_F(MacroErrors, OfAComponentReachTheUserOfTheEditor) {
    EXPECT_EQ(printed(std::string(oneRecipe) + R"(
        studio.RegisterComponent("HXProjectReport.Connect", {Hide = function() end})
        editor.abr.Click("mnuOptionReport")
        print(studio.Messages()[1].text))"),
              "-2147352570: The component has no member \"Show\"\n");
}

}  // namespace

}  // namespace hx::cli
