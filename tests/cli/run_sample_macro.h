// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>

#include "run_cli.h"

namespace hx::cli {

/// Tests of one macro of the samples on a project of their own, with these recipes and variables:
/// 1 Cola (all properties, variables A.Level, A.Heat, sub-recipes Rinse and Fill), 2 Rinse (variable Pump, sub-recipe
/// Fill without a variable), 3 Fill (no members).
class SampleMacroTest : public CliTest {
  protected:
    explicit SampleMacroTest(const char* macro) : macro_(std::string(HX_SAMPLES_FOLDER "/macros/") + macro) {
        makeProject(file_, R"(
            INSERT INTO ThxVariable (Name) VALUES ('A.Level'), ('A.Heat'), ('B.Level'), ('B.Heat'), ('Pump'), ('Start'),
                ('Stop'), ('Name.File'), ('Name.Text');
            INSERT INTO TrcpRecipe (Name, VarRecipeName, VarDescription, FilePath, FileExtension, Enabled, Comment,
                VarLoad, VarSave, VarRead, VarWrite, StandardValue, VarSetValue, SaveSubRecipes, SaveChanges,
                CryptEngine, Options)
            VALUES ('Cola', 'Name.File', 'Name.Text', '<ProjectDir>\r', 'rz', 1, 'süß & "kalt"', 'Start', 'Stop',
                    'A.Heat', 'B.Heat', 2.5, 'A.Level', 1, 1, 0, 2);
            INSERT INTO TrcpRecipe (Name, SaveSubRecipes) VALUES ('Rinse', 1), ('Fill', 0);
            INSERT INTO TrcpRecipeMember (ParentID, VarRecipe, ChildID) VALUES (1, 'A.Level', 0), (1, 'A.Heat', 0),
                (1, 'Name.File', 2), (1, '', 3), (2, 'Pump', 0), (2, '', 3);
        )");
    }

    Result run(const std::vector<std::string>& arguments = {}) {
        std::vector<const char*> all{"run", "--project", file_.c_str(), macro_.c_str(), "--"};
        for (const std::string& argument : arguments) all.push_back(argument.c_str());
        return hxrecipe(all);
    }
    /// What the macro prints; it must end well.
    std::string printed(const std::vector<std::string>& arguments = {}) {
        const Result result = run(arguments);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.problems, "");
        return result.results;
    }
    /// The first line that a macro says that fails and changes nothing.
    std::string refusal(const std::vector<std::string>& arguments = {}) {
        const std::string before = everything();
        const Result result = run(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(everything(), before);
        const std::string line = result.problems.substr(0, result.problems.find('\n'));
        return line.starts_with("hxrecipe: ") ? line.substr(10) : line;
    }
    std::string everything() const {
        return query(file_, "SELECT * FROM TrcpRecipe ORDER BY ID") + "\n" + members() + "\n" +
               query(file_, "SELECT * FROM ThxVariable ORDER BY ID");
    }
    std::string members() const {
        return query(file_, "SELECT ParentID, VarRecipe, ChildID FROM TrcpRecipeMember ORDER BY ID");
    }
    void change(const std::string& sql) { sqlite::Database(file_).execute(sql); }
    /// A text in the project's folder.
    void text(const std::string& name, const std::string& lines) { write(name, lines); }

  private:
    std::string macro_;
};

}  // namespace hx::cli
