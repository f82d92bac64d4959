// SPDX-License-Identifier: MIT
#include "bad_input.h"

namespace hx::cli {

namespace {

TEST_F(BadInput, AProjectThatIsMissingIsNamed) {
    const std::string none = folder_.file("none");
    for (const std::string& path : {none, std::string(), none + "/below"}) {
        expectRefused(path, "Could not find file '" + path + "'.");
    }
}

TEST_F(BadInput, AFolderIsNoProject) {
    std::filesystem::create_directory(folder_.file("folder"));
    expectRefused(folder_.file("folder"), "'" + folder_.file("folder") + "' is a folder, not a project file.");
}

TEST_F(BadInput, AnEmptyOrDamagedFileIsNamed) {
    const std::string whole = contents(file_);
    expectRefused(write("cut", whole.substr(0, 3000)), "The file '" + folder_.file("cut") + "' is damaged.");
    std::string header = whole;
    header.replace(20, 40, 40, '\xFF');
    expectRefused(write("header", header), "The file '" + folder_.file("header") + "' is not a project file.");
    std::string pages = whole;
    for (std::size_t i = 4096; i < pages.size(); i += 4096) pages[i] = '\x7F';
    const std::string spoilt = write("pages", pages);
    expectNamed(spoilt, {"check"});
    const Result checked = hxrecipe({"check", spoilt.c_str()});
    EXPECT_EQ(checked.status, 1);
    EXPECT_THAT(checked.results, testing::StartsWith("error: project: The file is damaged"));
}

TEST_F(BadInput, ADatabaseThatIsNoProjectIsNamed) {
    const std::string other = copy("other", "PRAGMA application_id=1");
    expectRefused(other, "The file '" + other + "' is not a project file.");
    const std::string newer = copy("newer", "PRAGMA user_version=99");
    expectRefused(newer, "The project '" + newer +
                             "' was made by a newer program (format 99; this program reads up to format 1).");
}

TEST_F(BadInput, ATableOrColumnThatIsMissingIsNamedWithTheFile) {
    expectNamed(copy("a", "DROP TABLE TrcpRecipe"), {"variables"});
    expectNamed(copy("b", "DROP TABLE TrcpRecipeMember"), {"variables"});
    expectNamed(copy("c", "ALTER TABLE TrcpRecipeMember RENAME COLUMN ChildID TO Kid"), {"variables"});
    expectNamed(copy("d", "DROP TABLE ThxVariable"), {"list", "show", "export", "import", "diff", "where"});
    const std::string name = copy("e", "ALTER TABLE ThxVariable RENAME COLUMN Name TO Title");
    expectNamed(name, {"list", "show", "export", "import", "diff", "where"});
}

TEST_F(BadInput, ANameThatIsNoTextIsNamedWithTheFile) {
    const std::string path = copy("blob", "UPDATE TrcpRecipe SET Name = X'00FF'");
    expectNamed(path, {"list", "show", "check", "where", "variables"});
    const Result result = hxrecipe({"export", path.c_str(), out_.c_str()});
    EXPECT_EQ(result.problems, "hxrecipe: " + path + ": The recipe with the ID 1 has a name that is no text.\n");
}

TEST_F(BadInput, AProjectThatAnotherProgramLocksIsNamed) {
    sqlite::Database other(file_);
    other.execute("BEGIN EXCLUSIVE");
    for (const auto& arguments : {std::vector<const char*>{"list", file_.c_str()},
                                  {"import", file_.c_str(), export_.c_str()},
                                  {"variables", "import", file_.c_str(), list_.c_str()}}) {
        const Result result = hxrecipe(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.problems, "hxrecipe: The file '" + file_ + "' is locked by another program.\n");
    }
}

TEST_F(BadInput, APathThatIsTakenStaysAsItIs) {
    const std::string folder = folder_.file("folder");
    std::filesystem::create_directory(folder);
    std::filesystem::create_symlink("nowhere", folder_.file("link"));
    for (const std::string& path : {file_, folder, list_, folder_.file("link")}) expectTaken(path);
    EXPECT_EQ(filesInFolder().size(), 5U);
}

TEST_F(BadInput, APathThatCannotBeMadeIsNamed) {
    for (const std::string& path : {std::string(), folder_.file("none/x"), list_ + "/x"}) {
        for (const auto& arguments : {std::vector<const char*>{"new", path.c_str()},
                                      {"generate", "--recipes", "1", "--members", "1", "--big", "0", path.c_str()},
                                      {"export", file_.c_str(), path.c_str()}}) {
            const Result result = hxrecipe(arguments);
            EXPECT_EQ(result.status, 1);
            EXPECT_TRUE(result.problems.starts_with("hxrecipe: The file '" + path + "' cannot be ")) << result.problems;
        }
    }
    EXPECT_EQ(filesInFolder().size(), 3U);
}

TEST_F(BadInput, WrongUseIsExplained) {
    for (const auto& arguments : {std::vector<const char*>{},
                                  {"lsit"},
                                  {"list"},
                                  {"list", "a", "b"},
                                  {"list", "--unknown", "a"},
                                  {"show", "a"},
                                  {"where", "a"},
                                  {"export", "a"},
                                  {"import", "a"},
                                  {"import", "a", "b", "--json"},
                                  {"import", "a", "b", "--mode", "add", "--mode", "add"},
                                  {"diff", "a"},
                                  {"new"},
                                  {"generate", "--recipes", "-1", "--members", "0", "--big", "0", "a"},
                                  {"generate", "--recipes", "x", "--members", "0", "--big", "0", "a"},
                                  {"generate", "--recipes", "0", "--members", "5", "--big", "0", "a"}}) {
        const Result result = hxrecipe(arguments);
        EXPECT_EQ(result.status, 2) << testing::PrintToString(arguments);
        EXPECT_EQ(result.results, "");
        EXPECT_NE(result.problems, "");
    }
    EXPECT_EQ(filesInFolder().size(), 3U);
}

TEST_F(BadInput, AnExportThatIsNoneIsRefused) {
    EXPECT_EQ(importProblem(""), "the file is empty\n");
    EXPECT_EQ(importProblem("\r\n \n"), "the file is empty\n");
    EXPECT_EQ(importProblem("[]"), "a list is not expected here\n");
    EXPECT_EQ(importProblem("5"), "a value is not expected here\n");
    EXPECT_EQ(importProblem(std::string(200'000, '[')), "a list is not expected here\n");
    EXPECT_EQ(importProblem("{\"recipes\": [{\"Name\": " + std::string(200'000, '[')),
              "a list is not expected here (\"Name\")\n");
    EXPECT_EQ(importProblem("\xEF\xBB\xBF" + recipes("")), "the file begins with a byte order mark\n");
    EXPECT_EQ(importProblem("{\"\xFF\": 1}"), "the text is not UTF-8\n");
    const Result project = hxrecipe({"import", file_.c_str(), file_.c_str()});
    EXPECT_EQ(project.problems, "hxrecipe: " + file_ + " is a project, not an export\n");
}

TEST_F(BadInput, AnExportThatIsNotWholeIsRefused) {
    // With --mode replace an empty list of recipes deletes all: it must be there.
    EXPECT_EQ(importProblem("{\"format\": \"hxrecipe\", \"version\": 1}"), "\"recipes\" is missing\n");
    EXPECT_EQ(importProblem("{\"format\": \"hxrecipe\", \"recipes\": []}"), "\"version\" is missing\n");
    EXPECT_EQ(importProblem("{\"format\": \"hxrecipe\", \"version\": \"1\", \"recipes\": []}"),
              "\"version\": this program reads version 1 alone\n");
    EXPECT_EQ(importProblem("{\"recipes\": [], \"recipes\": []}"), "\"recipes\" is given twice\n");
    EXPECT_EQ(importProblem(recipes("5")), "a value is not expected here\n");
    EXPECT_EQ(importProblem(recipes("{}")), "the recipe has no \"Name\"\n");
    EXPECT_EQ(importProblem(recipes("{\"Name\": \"A\", \"members\": [{}]}")),
              "the member names neither a variable (\"VarRecipe\") nor a \"subRecipe\"\n");
    EXPECT_EQ(importProblem(recipes("{\"Name\": \"A\", \"Comment\": {}}")),
              "bytes are written as {\"hex\": \"0A1B...\"}\n");
    EXPECT_NE(importProblem(recipes("{\"Name\": \"A\"},")).find("unexpected ']'"), std::string::npos);
    EXPECT_NE(importProblem("{\"format\": \"hxrecipe\"").find("unexpected end of input"), std::string::npos);
}

TEST_F(BadInput, ValuesThatDoNotFitAreRefused) {
    const auto with = [](const std::string& field) { return recipes("{\"Name\": \"A\", " + field + "}"); };
    EXPECT_EQ(importProblem(with("\"Name\": \"B\"")), "\"Name\" is given twice\n");
    EXPECT_EQ(importProblem(with("\"name\": \"B\"")), "\"name\" is given twice\n");
    EXPECT_EQ(importProblem(with("\"Options\": 1e400")), "number overflow parsing '1e400'\n");
    EXPECT_EQ(importProblem(with("\"Options\": 1.5")), "\"Options\": a whole number is expected\n");
    EXPECT_EQ(importProblem(with("\"Options\": 18446744073709551615")), "\"Options\": the number is too large\n");
    EXPECT_EQ(importProblem(with("\"Options\": 99999999999999999999999")), "\"Options\": a whole number is expected\n");
    EXPECT_EQ(importProblem(with("\"Enabled\": \"yes\"")), "\"Enabled\": true or false is expected\n");
    EXPECT_EQ(importProblem(with("\"Comment\": 5")), "\"Comment\": a text is expected\n");
    EXPECT_EQ(importProblem(with("\"Comment\": \"" + std::string(256, 'x') + "\"")),
              "\"Comment\": the text is longer than 255 characters\n");
    EXPECT_EQ(importProblem(with("\"members\": [{\"VarRecipe\": \"" + std::string(256, 'x') + "\"}]")),
              "\"VarRecipe\": the text is longer than 255 characters\n");
    EXPECT_EQ(importProblem(with("\"members\": {}")), "an object is not expected here (\"members\")\n");
    std::string many = "\"c\": 1";
    for (int i = 0; i < 2000; ++i) many += ", \"c" + std::to_string(i) + "\": 1";
    EXPECT_EQ(importProblem(with(many)), "there are more fields than columns can be\n");
}

TEST_F(BadInput, ADryRunOfAnImportSpeaksJsonLikeDiff) {
    const std::string in = write("in.json", recipes("{\"Name\": \"New\", \"members\": []}"));
    const Result result = hxrecipe({"import", file_.c_str(), in.c_str(), "--dry-run", "--json"});
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(result.results, "{\"differences\": [\n{\"kind\":\"added\",\"recipe\":\"New\"}\n]}\n");
    EXPECT_EQ(query(file_, "SELECT COUNT(*) FROM TrcpRecipe"), "1");
}

}  // namespace

}  // namespace hx::cli
