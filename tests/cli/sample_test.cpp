#include "cli/sample.h"

#include "run_cli.h"

namespace hx::cli {

namespace {

class SampleFiles : public CliTest {
  protected:
    static constexpr const char* variables =
        "Name;Type;Comment\n"
        "Mischer1.Temperatur.Soll;REAL;Solltemperatur\r\n"
        "\n"
        "CIP.Dateiname;STRING;\n";

    // What build-sample says about this recipes.txt.
    std::string problem(const std::string& recipes) { return build(variables, recipes); }

    std::string build(const std::string& variablesFile, const std::string& recipes) {
        write("s/variables.csv", variablesFile);
        write("s/recipes.txt", recipes);
        std::filesystem::remove(file_);
        const Result result = hxrecipe({"build-sample", folder_.file("s").c_str(), file_.c_str()});
        EXPECT_EQ(result.status == 0, std::filesystem::exists(file_));
        EXPECT_EQ(filesInFolder().size(), result.status == 0 ? 2U : 1U);
        std::string text = result.problems;
        const std::string prefix = "hxrecipe: " + folder_.path() + "/s/";
        if (text.starts_with(prefix)) text = text.substr(prefix.size());
        if (text.ends_with('\n')) text.pop_back();
        return text;
    }
};

TEST_F(SampleFiles, AreWrittenIntoAProject) {
    EXPECT_EQ(problem("# a comment\n"
                      "recipe \"Saft \"\"pur\"\"\"\n"
                      "  # another\n"
                      "\tVarRecipeName = CIP.Dateiname\r\n"
                      "  FilePath = <ProjectDir>\\Rezepte # 1\n"
                      "  Enabled = true\n"
                      "  StandardValue = 1.5\n"
                      "  Options=3\n"
                      "  Comment =\n"
                      "  SaveSubRecipes = true\n"
                      "  variable Mischer1.Temperatur.Soll\n"
                      "  subrecipe \"D'Or\" file CIP.Dateiname\n"
                      "  subrecipe \"D'Or\"\n"
                      "\n"
                      "recipe \"D'Or\"\n"
                      "  subrecipe \"D'Or\" file CIP.Dateiname"),
              "");
    EXPECT_EQ(query(file_, "SELECT ID, Name, VarRecipeName, FilePath, Enabled, StandardValue, Options FROM TrcpRecipe"),
              "1|Saft \"pur\"|CIP.Dateiname|<ProjectDir>\\Rezepte # 1|True|1.5|3,2|D'Or|||False|0|0");
    EXPECT_EQ(query(file_, "TrcpRecipeMember"),
              "1|1|Mischer1.Temperatur.Soll|0,2|1|CIP.Dateiname|2,3|1||2,4|2|CIP.Dateiname|2");
    EXPECT_EQ(query(file_, "ThxVariable"), "1|Mischer1.Temperatur.Soll|REAL|Solltemperatur,2|CIP.Dateiname|STRING|");
}

TEST_F(SampleFiles, WithoutRecipesAreAnEmptyProject) {
    EXPECT_EQ(problem(""), "");
    EXPECT_EQ(build("Name;Type;Comment", "# nothing\n"), "");
    EXPECT_EQ(query(file_, "TrcpRecipe"), "");
}

TEST_F(SampleFiles, FaultsInTheVariablesAreNamedWithTheirLine) {
    const auto faulty = [this](const std::string& text) { return build(text, ""); };
    EXPECT_EQ(faulty("Name;Type\n"), "variables.csv, line 1: the first line must be \"Name;Type;Comment\"");
    EXPECT_EQ(faulty("\xEF\xBB\xBFName;Type;Comment\n"),
              "variables.csv, line 1: the file begins with a byte order mark");
    EXPECT_EQ(faulty("Name;Type;Comment\nA;INT\n"), "variables.csv, line 2: three fields are expected, 2 found");
    EXPECT_EQ(faulty("Name;Type;Comment\nA;INT;x;y\n"), "variables.csv, line 2: three fields are expected, 4 found");
    EXPECT_EQ(faulty("Name;Type;Comment\n;INT;\n"), "variables.csv, line 2: \"\" is not a variable name");
    EXPECT_EQ(faulty("Name;Type;Comment\nA..B;INT;\n"), "variables.csv, line 2: \"A..B\" is not a variable name");
    EXPECT_EQ(faulty("Name;Type;Comment\n\nA;WORD;\n"),
              "variables.csv, line 3: the type \"WORD\" is none of BOOL, INT, DINT, REAL, STRING");
    EXPECT_EQ(faulty("Name;Type;Comment\nÄ;INT;\nä;INT;\n"),
              "variables.csv, line 3: the variable \"ä\" exists already");
    EXPECT_EQ(faulty("Name;Type;Comment\nA;INT;\xFF\n"), "variables.csv, line 2: the text is not UTF-8");
}

TEST_F(SampleFiles, FaultsInTheRecipesAreNamedWithTheirLine) {
    EXPECT_EQ(problem("  Enabled = true\n"), "recipes.txt, line 1: this line belongs to no recipe");
    EXPECT_EQ(problem("Enabled = true\n"), "recipes.txt, line 1: a line in the first column begins with \"recipe\"");
    EXPECT_EQ(problem("recipe A\n"), "recipes.txt, line 1: a name in quotation marks is expected");
    EXPECT_EQ(problem("recipe \"A\n"), "recipes.txt, line 1: the closing quotation mark is missing");
    EXPECT_EQ(problem("recipe \"\"\n"), "recipes.txt, line 1: the name is empty");
    EXPECT_EQ(problem("recipe \"A\" B\n"), "recipes.txt, line 1: unexpected text behind the name");
    EXPECT_EQ(problem("recipe \"Ü\"\n\nrecipe \"ü\"\n"), "recipes.txt, line 3: the recipe \"ü\" exists already");
    const std::string recipe = "recipe \"A\"\n";
    EXPECT_EQ(problem(recipe + "  variable Mischer1.temperatur.Soll\n"),
              "recipes.txt, line 2: the variable \"Mischer1.temperatur.Soll\" is not in variables.csv");
    EXPECT_EQ(problem(recipe + "  variable\n"), "recipes.txt, line 2: the variable \"\" is not in variables.csv");
    EXPECT_EQ(problem(recipe + "  subrecipe \"B\" file CIP.Dateiname\n"),
              "recipes.txt, line 2: there is no recipe \"B\"");
    EXPECT_EQ(problem(recipe + "  subrecipe \"a\" file CIP.Dateiname\n"),
              "recipes.txt, line 2: there is no recipe \"a\"");
    EXPECT_EQ(problem(recipe + "  subrecipe \"A\" CIP.Dateiname\n"),
              "recipes.txt, line 2: \"file\" or the end of the line is expected behind the name");
    EXPECT_EQ(problem(recipe + "  subrecipe \"A\"\n"),
              "recipes.txt, line 2: without SaveSubRecipes = true a sub-recipe needs \"file\" and a variable");
    EXPECT_EQ(problem(recipe + "  Enabled = yes\n"), "recipes.txt, line 2: \"yes\" is neither true nor false");
    EXPECT_EQ(problem(recipe + "  Options = 1.5\n"), "recipes.txt, line 2: \"1.5\" is not a whole number");
    EXPECT_EQ(problem(recipe + "  Options = 9999999999\n"), "recipes.txt, line 2: \"9999999999\" is too large");
    EXPECT_EQ(problem(recipe + "  StandardValue = 1,5\n"), "recipes.txt, line 2: \"1,5\" is not a number");
    EXPECT_EQ(problem(recipe + "  VarLoad = Nobody\n"),
              "recipes.txt, line 2: the variable \"Nobody\" is not in variables.csv");
    EXPECT_EQ(problem(recipe + "  Name = B\n"), "recipes.txt, line 2: there is no column \"Name\"");
    EXPECT_EQ(problem(recipe + "  nonsense\n"), "recipes.txt, line 2: \"nonsense\" begins no line of a recipe");
    EXPECT_EQ(problem(recipe + "  Options = 1\n  Options = 1\n"),
              "recipes.txt, line 3: the column \"Options\" is set already");
    EXPECT_EQ(problem(recipe + "  variable CIP.Dateiname\n  Options = 1\n"),
              "recipes.txt, line 3: columns come before members");
    EXPECT_EQ(problem(recipe + "  Comment = \xC3\x28\n"), "recipes.txt, line 2: the text is not UTF-8");
}

TEST_F(SampleFiles, ThatAreMissingAreNamed) {
    const Result result = hxrecipe({"build-sample", folder_.file("nowhere").c_str(), file_.c_str()});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.problems,
              "hxrecipe: " + folder_.file("nowhere") + "/variables.csv cannot be read: No such file or directory\n");
    EXPECT_TRUE(filesInFolder().empty());
}

class BeverageLine : public CliTest {
  protected:
    BeverageLine() {
        const Result result = hxrecipe({"build-sample", HX_SAMPLES_FOLDER "/getraenkelinie", file_.c_str()});
        EXPECT_EQ(result.status, 0) << result.problems;
    }
    int number(const std::string& sql) { return std::stoi(query(file_, sql)); }
};

TEST_F(BeverageLine, IsABelievablePlant) {
    EXPECT_GE(number("SELECT COUNT(*) FROM TrcpRecipe"), 40);
    EXPECT_GE(number("SELECT COUNT(*) FROM ThxVariable"), 600);
    EXPECT_GE(number("SELECT COUNT(*) FROM TrcpRecipe WHERE Name LIKE '*''*'"), 1);
    EXPECT_GE(number("SELECT COUNT(*) FROM TrcpRecipe WHERE Name LIKE '*ä*' OR Name LIKE '*ö*' OR Name LIKE '*ü*'"), 5);
}

TEST_F(BeverageLine, HasThreeLevelsOfSubRecipes) {
    EXPECT_GE(number("SELECT COUNT(*) FROM TrcpRecipeMember a, TrcpRecipeMember b, TrcpRecipeMember c WHERE "
                     "a.ChildID <> 0 AND b.ParentID = a.ChildID AND b.ChildID <> 0 AND c.ParentID = b.ChildID AND "
                     "c.ChildID <> 0 AND a.ParentID <> b.ParentID AND b.ParentID <> c.ParentID AND "
                     "c.ParentID <> a.ParentID"),
              1);
}

TEST_F(BeverageLine, RefersOnlyToWhatExists) {
    EXPECT_EQ(number("SELECT COUNT(*) FROM TrcpRecipeMember WHERE ChildID <> 0 AND ChildID NOT IN "
                     "(SELECT ID FROM TrcpRecipe)"),
              0);
    EXPECT_EQ(number("SELECT COUNT(*) FROM TrcpRecipeMember WHERE VarRecipe <> '' AND VarRecipe NOT IN "
                     "(SELECT Name FROM ThxVariable)"),
              0);
}

}  // namespace

}  // namespace hx::cli
