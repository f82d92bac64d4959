// SPDX-License-Identifier: MIT

// Two editors, each in a process of its own, work on one project: while a dialog or a row of the one is open, the other
// changes what it shows.
#include <gmock/gmock.h>
#include <sys/wait.h>

#include "run_cli.h"

namespace hx::cli {

namespace {

class TwoEditors : public CliTest {
  protected:
    TwoEditors() {
        makeProject(file_, R"(
            INSERT INTO TrcpRecipe (Name, Comment, VarLoad, StandardValue) VALUES ('Cola', 'kalt', 'Start', 0.5);
            INSERT INTO TrcpRecipe (Name) VALUES ('Sirup'), ('Wasser');
            INSERT INTO TrcpRecipeMember (ParentID, VarRecipe, ChildID) VALUES (1, 'A', 0), (1, 'B', 0), (1, 'F', 2);
            INSERT INTO ThxVariable (Name) VALUES ('A'), ('B'), ('C'), ('D');
        )");
    }

    /// What the macro `one` prints in a process, and then the messages that its user got, a line each. Where it calls
    /// other(), a second process runs the macro `two` from its beginning to its end.
    std::string run(const std::string& one, const std::string& two, const std::string& options = {}) {
        const std::string oneFile = write("one.lua", beginning + one + ending);
        const std::string twoFile = write("two.lua", beginning + two);
        const std::string program =
            std::string("'") + HX_RECIPE + "' run --trust " + options + " --project '" + file_ + "' '";
        const std::string command = program + oneFile + "' \"" + program + twoFile + "'\" 2>&1";
        FILE* pipe = popen(command.c_str(), "r");
        std::string printed;
        for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) printed += static_cast<char>(c);
        EXPECT_EQ(pclose(pipe), 0) << printed;
        return printed;
    }
    [[nodiscard]] std::string recipes() const {
        return query(file_, "SELECT ID, Name, Comment, VarLoad FROM TrcpRecipe ORDER BY ID");
    }
    [[nodiscard]] std::string members() const {
        return query(file_, "SELECT ParentID, VarRecipe, ChildID FROM TrcpRecipeMember ORDER BY ID");
    }

    static constexpr const char* beginning = R"(
        local command = ...
        local function other() assert(os.execute(command), "the other editor failed") end
        local function cells()
            local texts = {}
            for row = 0, editor.tdbRM.RowCount - 1 do texts[#texts + 1] = editor.tdbRM.Text(row, "VarRecipe") end
            print(table.concat(texts, ","))
        end
        local function edit(change)
            studio.OnDialog("FRecipe", function(d) change(d) d.cmdOk.Click() end)
            editor.abr.Click("mnuRecipeEdit")
        end
        local function choose(...)
            local names = {...}
            studio.OnDialog("FMultiSelectItems", function(d)
                d.hxMI.SelectedItems = names
                other()
                d.cmdOk.Click()
            end)
            editor.abr.Click("mnuRecipeMemberNewVariable")
        end
        studio.Click("RCPE0") studio.Click("RCPR1")
    )";
    static constexpr const char* ending = R"(
        for _, m in ipairs(studio.Messages()) do print("[" .. m.title .. "] " .. m.text:gsub("\r\n", " / ")) end
    )";
    static constexpr const char* deleteTheRecipe = R"(
        studio.OnMessage(function() return "yes" end)
        editor.abr.Click("mnuRecipeDelete")
    )";
};

TEST_F(TwoEditors, KeepBothChangesOfDifferentPropertiesOfARecipe) {
    EXPECT_EQ(run("edit(function(d) other() d.txtVarLoad.Text = 'Go' end)",
                  "edit(function(d) d.txtComment.Text = 'warm' d.txtName.Text = 'Limo' end)"),
              "");
    EXPECT_EQ(recipes(), "1|Limo|warm|Go,2|Sirup||,3|Wasser||");
}

TEST_F(TwoEditors, AreToldOfTheSamePropertyOfARecipeAndTheFirstChangeStays) {
    EXPECT_EQ(run(R"(
        edit(function(d) other() d.txtComment.Text = 'lau' d.txtVarLoad.Text = 'Go' end)
        edit(function(d) print(d.txtComment.Text) end)
    )",
                  "edit(function(d) d.txtComment.Text = 'warm' end)"),
              "warm\n[mnuRecipeFunc] -2147217864: Die Zeile wurde von jemand anderem geändert. Nichts davon wurde "
              "gespeichert: / Kommentar: \"lau\"; gespeichert ist jetzt \"warm\" / Ladetrigger: \"Go\"\n");
    EXPECT_EQ(recipes(), "1|Cola|warm|Start,2|Sirup||,3|Wasser||");
}

TEST_F(TwoEditors, AreToldOfARecipeThatIsGoneAndItsNodesGo) {
    const std::string printed = run(R"(
        edit(function(d) other() d.txtComment.Text = 'lau' end)
        for _, node in ipairs(studio.Nodes()) do print(node.key) end
    )",
                                    deleteTheRecipe);
    EXPECT_THAT(printed, testing::HasSubstr("[mnuRecipeFunc] -2147217885: Die Zeile wurde von jemand anderem gelöscht. "
                                            "Nichts davon wurde gespeichert: / Kommentar: \"lau\"\n"));
    EXPECT_THAT(printed, testing::Not(testing::HasSubstr("RCPR1")));
    EXPECT_EQ(recipes(), "2|Sirup||,3|Wasser||");
}

TEST_F(TwoEditors, AreToldOfTheSameCellAndItShowsTheFirstChange) {
    EXPECT_EQ(run(R"(
        editor.tdbRM.SetText(0, "VarRecipe", "Mine")
        other()
        pcall(function() editor.tdbRM.Row = 1 end)
        cells()
    )",
                  "editor.tdbRM.SetText(0, 'VarRecipe', 'Theirs') editor.tdbRM.Row = 1"),
              "Theirs,B\n[tdbRM_Error] -2147217864: Die Zeile wurde von jemand anderem geändert. Nichts davon wurde "
              "gespeichert: / Variable: \"Mine\"; gespeichert ist jetzt \"Theirs\"\n");
    EXPECT_EQ(members(), "1|Theirs|0,1|B|0,1|F|2");
}

TEST_F(TwoEditors, AreToldOfARowThatIsGoneAndItIsNotShown) {
    EXPECT_EQ(
        run(R"(
        editor.tdbRM.Row = 1
        editor.tdbRM.SetText(1, "VarRecipe", "Mine")
        other()
        pcall(function() editor.tdbRM.Row = 0 end)
        cells()
    )",
            R"(
        studio.OnMessage(function() return "yes" end)
        editor.tdbRM.SelectRows({1})
        editor.mnuRecipeMember(2)
    )"),
        "A\n[HXRecipeEditor] Resource 407 not found\n[tdbRM_Error] -2147217885: Die Zeile wurde von jemand anderem "
        "gelöscht. Nichts davon wurde gespeichert: / Variable: \"Mine\"\n");
    EXPECT_EQ(members(), "1|A|0,1|F|2");
}

TEST_F(TwoEditors, AreAskedBeforeMembersThatCameOrWentMeanwhileAreReplaced) {
    const std::string two = R"(
        studio.OnDialog("FMultiSelectItems", function(d) d.hxMI.SelectedItems = {"B", "D"} d.cmdOk.Click() end)
        editor.abr.Click("mnuRecipeMemberNewVariable")
    )";
    const std::string question =
        "Die Elemente des Rezepts wurden inzwischen von jemand anderem geändert. / Hinzugekommen: B, D / Entfernt: A, "
        "B, Sirup / Trotzdem durch die Auswahl ersetzen?\n";
    EXPECT_EQ(run("choose('A', 'B', 'C') cells()", two), "B,D\n[HXRecipeEditor] " + question);
    EXPECT_EQ(members(), "1|B|0,1|D|0");
}

TEST_F(TwoEditors, ReplaceMembersThatCameMeanwhileWhenTheUserSaysSo) {
    EXPECT_THAT(
        run("studio.OnMessage(function() return 'yes' end) choose('A', 'C') cells()", R"(
        studio.Click("RCPU1")
        studio.OnDialog("FSubRecipe", function(d)
            d.cmbChooseRecipe.ListIndex = 2
            d.txtVarRecipe.Text = "W"
            d.cmdOk.Click()
        end)
        editor.abr.Click("mnuRecipeMemberNewRecipe")
    )"),
        testing::AllOf(testing::StartsWith("A,C\n"), testing::HasSubstr("Hinzugekommen: Wasser / Entfernt: -")));
    EXPECT_EQ(members(), "1|A|0,1|C|0");
}

TEST_F(TwoEditors, GiveNoVariablesToARecipeThatIsGone) {
    const std::string printed = run("choose('A', 'B', 'C') print(editor.NodeKey)", deleteTheRecipe);
    EXPECT_THAT(printed, testing::StartsWith("RCPE0\n"));
    EXPECT_THAT(printed, testing::HasSubstr("[mnuRecipeMember] -2147217885: Das Rezept mit der ID 1 wurde von jemand "
                                            "anderem gelöscht. Nichts wurde gespeichert.\n"));
    EXPECT_EQ(members(), "");
}

TEST_F(TwoEditors, GiveNoSubRecipeToARecipeThatIsGone) {
    const std::string printed = run(R"(
        studio.Click("RCPU1")
        studio.OnDialog("FSubRecipe", function(d)
            d.cmbChooseRecipe.ListIndex = 2
            d.txtVarRecipe.Text = "W"
            other()
            d.cmdOk.Click()
        end)
        editor.abr.Click("mnuRecipeMemberNewRecipe")
        print(editor.NodeKey)
    )",
                                    deleteTheRecipe);
    EXPECT_THAT(printed, testing::StartsWith("RCPE0\n"));
    EXPECT_THAT(printed, testing::HasSubstr("-2147217885: Das Rezept mit der ID 1 "));
    EXPECT_EQ(members(), "");
}

class TwoEditorsAndASubRecipe : public TwoEditors, public testing::WithParamInterface<const char*> {};

TEST_P(TwoEditorsAndASubRecipe, IncludeNoRecipeThatIsGone) {
    const std::string printed = run(std::string(R"(
            studio.Click("RCPU1")
            studio.OnDialog("FSubRecipe", function(d)
                d.cmbChooseRecipe.ListIndex = d.cmbChooseRecipe.ListCount - 1
                d.txtVarRecipe.Text = "W"
                other()
                d.cmdOk.Click()
            end)
            editor.abr.Click(")") + GetParam() +
                                        "\")",
                                    R"(
            studio.OnMessage(function() return "yes" end)
            local nodes = studio.Nodes()
            local last
            for _, node in ipairs(nodes) do if node.key:find("^RCPR") then last = node.key end end
            studio.Click(last)
            editor.abr.Click("mnuRecipeDelete")
    )");
    EXPECT_THAT(printed, testing::HasSubstr("wurde von jemand anderem gelöscht. Nichts wurde gespeichert."));
    EXPECT_EQ(members(), "1|A|0,1|B|0,1|F|2");
}

INSTANTIATE_TEST_SUITE_P(Added, TwoEditorsAndASubRecipe, testing::Values("mnuRecipeMemberNewRecipe"));
INSTANTIATE_TEST_SUITE_P(Edited, TwoEditorsAndASubRecipe, testing::Values("mnuRecipeMemberEditSubRecipe"));

TEST_F(TwoEditors, AreToldOfTheSameSubRecipe) {
    EXPECT_EQ(run(R"(
        studio.Click("RCPU1")
        studio.OnDialog("FSubRecipe", function(d)
            other()
            d.cmbChooseRecipe.ListIndex = 2
            d.txtVarRecipe.Text = "Mine"
            d.cmdOk.Click()
        end)
        editor.abr.Click("mnuRecipeMemberEditSubRecipe")
        cells()
    )",
                  R"(
        studio.Click("RCPU1")
        editor.tdbRM.SetText(0, "VarRecipe", "Theirs")
        editor.tdbRM.Update()
    )"),
              "Theirs\n[mnuRecipeMember] -2147217864: Die Zeile wurde von jemand anderem geändert. Nichts davon wurde "
              "gespeichert: / Dateiname: \"Mine\"; gespeichert ist jetzt \"Theirs\" / Unterrezept: \"Wasser\"\n");
    EXPECT_EQ(members(), "1|A|0,1|B|0,1|Theirs|2");
}

TEST_F(TwoEditors, AreToldInEnglish) {
    const std::string printed = run("edit(function(d) other() d.txtComment.Text = 'lau' end)",
                                    "edit(function(d) d.txtComment.Text = 'warm' end)", "--lcid 1033");
    EXPECT_EQ(printed,
              "[mnuRecipeFunc] -2147217864: The row was changed by another. Nothing of this was stored: / "
              "Comment: \"lau\"; stored is now \"warm\"\n");
}

}  // namespace

}  // namespace hx::cli
