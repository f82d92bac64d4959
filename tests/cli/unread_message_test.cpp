// SPDX-License-Identifier: MIT

// What a macro's run says of message boxes that nobody has read.
#include "run_macro_text.h"

namespace hx::cli {

namespace {

class UnreadMessage : public MacroTextTest {
  protected:
    /// Gives the second recipe the name of the first, after `before`; then does `after`.
    Result rename(const std::string& before, const std::string& after, const std::vector<const char*>& options = {}) {
        return macro(oneRecipe + before + R"(
            studio.Click("RCPE0") editor.abr.Click("mnuRecipeNew")
            studio.Click("RCPR" .. project.Query("SELECT MAX(ID) AS id FROM TrcpRecipe")[1].id)
            studio.OnDialog("FRecipe", function(d) d.txtName.Text = "Neues Rezept" d.cmdOk.Click() end)
            editor.abr.Click("mnuRecipeEdit")
        )" + after,
                     options);
    }
};

TEST_F(UnreadMessage, MakesTheRunFailAndIsPrinted) {
    const Result result = rename("", "print('done')");
    EXPECT_EQ(result.results, "done\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.problems, "hxrecipe: mnuRecipeFunc: -2147217887: Ein Rezept \"Neues Rezept\" gibt es schon.\n");
}

TEST_F(UnreadMessage, IsInTheEditorsLanguage) {
    EXPECT_EQ(rename("", "", {"--lcid", "1033"}).problems,
              "hxrecipe: mnuRecipeFunc: -2147217887: There is a recipe \"Neues Rezept\" already.\n");
}

TEST_F(UnreadMessage, IsNoneThatTheMacroHasRead) { EXPECT_EQ(rename("", "print(#studio.Messages())").status, 0); }

TEST_F(UnreadMessage, IsNoneThatTheMacroWasAsked) {
    const Result result = rename("studio.OnMessage(function() end)", "");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.problems, "");
}

TEST_F(UnreadMessage, IsNoQuestionThatItsDefaultButtonAnswered) {
    EXPECT_EQ(macro(std::string(oneRecipe) + "editor.abr.Click('mnuRecipeDelete')").status, 0);
}

TEST_F(UnreadMessage, OfAnEntryThatIsLostWithTheProjectsClosingMakesTheRunFail) {
    const Result result =
        macro(std::string(oneRecipe) + R"(choose("A", "B") editor.tdbRM.SetText(0, "VarRecipe", "B"))");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.problems,
              "hxrecipe: VerifyAdds: -2147217887: Die Eingabe \"B\" konnte nicht gespeichert werden und wurde "
              "verworfen. Das Rezept hat die Variable \"B\" schon.\n");
}

}  // namespace

}  // namespace hx::cli
