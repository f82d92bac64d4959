// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <gmock/gmock.h>

#include "automation/text.h"
#include "run_cli.h"

namespace hx::cli {

/// Macros that are written in the test and run in a folder of their own; "$P" in a macro stands for the path of a
/// project, which is not there at first.
class MacroTextTest : public CliTest {
  protected:
    Result macro(std::string text, std::vector<const char*> options = {}) {
        text = automation::replaceAll(text, "$P", file_);
        macro_ = write("m.lua", text);
        if (!choosesFiles(options)) options.insert(options.begin(), {"--folder", folder_.path().c_str()});
        options.insert(options.begin(), "run");
        options.push_back(macro_.c_str());
        return hxrecipe(options);
    }
    /// What the macro prints; it must end well.
    std::string printed(const std::string& text, const std::vector<const char*>& options = {}) {
        const Result result = macro(text, options);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.problems, "");
        return result.results;
    }
    /// The first line of what the macro says that must fail, without the program's name and the macro's path.
    std::string problem(const std::string& text) {
        const Result result = macro(text);
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.problems.find("\nstack traceback:\n"), std::string::npos);
        const std::string line = result.problems.substr(0, result.problems.find('\n'));
        const std::string prefix = "hxrecipe: " + macro_ + ":";
        return line.starts_with(prefix) ? line.substr(prefix.size()) : line;
    }

    std::string macro_;

  private:
    static bool choosesFiles(const std::vector<const char*>& options) {
        return std::ranges::any_of(options, [](std::string_view option) {
            return option == "--folder" || option == "--project" || option == "--trust";
        });
    }
};

/// A function of a macro: makes a recipe of this name through its dialog.
inline constexpr const char* newRecipe = R"(
    local function newRecipe(name)
        studio.Click("RCPE0")
        editor.abr.Click("mnuRecipeNew")
        studio.Click("RCPR" .. project.Query("SELECT MAX(ID) AS id FROM TrcpRecipe")[1].id)
        studio.OnDialog("FRecipe", function(d) d.txtName.Text = name d.cmdOk.Click() end)
        editor.abr.Click("mnuRecipeEdit")
    end
)";

/// Makes a project with the recipe 1 "Neues Rezept", which is shown, and the variables A, B and C.
inline constexpr const char* oneRecipe = R"(
    studio.NewProject("$P") studio.SetVariables({"A", "B", "C"})
    studio.Click("RCPE0") editor.abr.Click("mnuRecipeNew") studio.Click("RCPR1")
    local function choose(...)
        local names = {...}
        studio.OnDialog("FMultiSelectItems", function(d) d.hxMI.SelectedItems = names d.cmdOk.Click() end)
        editor.abr.Click("mnuRecipeMemberNewVariable")
        studio.OnDialog("FMultiSelectItems", nil)
    end
)";

}  // namespace hx::cli
