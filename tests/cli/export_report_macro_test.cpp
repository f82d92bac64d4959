// SPDX-License-Identifier: MIT
#include "run_sample_macro.h"

namespace hx::cli {

namespace {

using testing::HasSubstr;

struct ExportReportMacro : SampleMacroTest {
    ExportReportMacro() : SampleMacroTest("export_report.lua") {}

    std::string report(const std::string& name) const { return contents(folder_.file(name)); }
};

TEST_F(ExportReportMacro, WritesMarkdown) {
    const std::string before = everything();
    EXPECT_EQ(printed(), "3 recipes written to recipes.md\n");
    EXPECT_THAT(report("recipes.md"), testing::StartsWith("<!-- recipe report -->\n"
                                                          "# plant\n\n"
                                                          "## Cola\n\n"
                                                          "| Property | Value |\n|---|---|\n"
                                                          "| Recipe file name | Name.File |\n"
                                                          "| Path | \\<ProjectDir\\>\\\\r |\n"
                                                          "| Extension | rz |\n"
                                                          "| Active | yes |\n"
                                                          "| Comment | süß \\& \"kalt\" |\n"));
    EXPECT_THAT(report("recipes.md"), HasSubstr("| Norm factor | 2.5 |\n| Multiply factor | A.Level |\n\n"
                                                "| Variable |\n|---|\n| A.Level |\n| A.Heat |\n\n"
                                                "| Sub-recipe | File name |\n|---|---|\n| Rinse | Name.File |\n"
                                                "| Fill |  |\n"));
    EXPECT_THAT(report("recipes.md"), HasSubstr("| Used by | Cola, Rinse |\n"));
    EXPECT_EQ(everything(), before);
}

TEST_F(ExportReportMacro, WritesHtml) {
    EXPECT_EQ(printed({"Plant.HTML"}), "3 recipes written to Plant.HTML\n");
    EXPECT_THAT(report("Plant.HTML"), HasSubstr("<tr><td>Comment</td><td>süß &amp; &quot;kalt&quot;</td></tr>\n"));
    EXPECT_THAT(report("Plant.HTML"), HasSubstr("<tr><td>Path</td><td>&lt;ProjectDir&gt;\\r</td></tr>\n"));
    EXPECT_THAT(report("Plant.HTML"), testing::EndsWith("</body>\n</html>\n"));
}

TEST_F(ExportReportMacro, LetsNoTextBreakItsTables) {
    change("UPDATE TrcpRecipe SET Comment = 'a|b' || char(10) || '<i>', Name = '<b>*Cola*' WHERE ID = 1");
    printed();
    EXPECT_THAT(report("recipes.md"), HasSubstr("| Comment | a\\|b \\<i\\> |\n"));
    EXPECT_THAT(report("recipes.md"), HasSubstr("## \\<b\\>\\*Cola\\*\n"));
}

TEST_F(ExportReportMacro, NamesSubRecipesThatDoNotExist) {
    change("UPDATE TrcpRecipeMember SET ChildID = 77 WHERE ChildID = 2");
    printed();
    EXPECT_THAT(report("recipes.md"), HasSubstr("| does not exist | Name.File |\n"));
}

TEST_F(ExportReportMacro, ReplacesAReportButNoOtherFile) {
    printed();
    change("UPDATE TrcpRecipe SET Name = 'Tea' WHERE ID = 1");
    printed();
    EXPECT_THAT(report("recipes.md"), HasSubstr("## Tea\n"));
    text("recipes.md", "mine\n");
    EXPECT_EQ(refusal(), "The file \"recipes.md\" exists already and is not a report of this macro");
    EXPECT_EQ(report("recipes.md"), "mine\n");
}

TEST_F(ExportReportMacro, RefusesOtherFilesAndFolders) {
    EXPECT_EQ(refusal({"report.txt"}), "The report \"report.txt\" is neither .md nor .html");
    EXPECT_EQ(refusal({"report"}), "The report \"report\" is neither .md nor .html");
    EXPECT_EQ(refusal({"a.md", "b.md"}), "Give one file name");
    EXPECT_THAT(refusal({"../a.md"}), HasSubstr("is not in the folder"));
    EXPECT_THAT(refusal({"none/a.md"}), HasSubstr("The report cannot be written: "));
    EXPECT_EQ(filesInFolder(), std::vector<std::string>{"plant.hxs"});
}

}  // namespace

}  // namespace hx::cli
