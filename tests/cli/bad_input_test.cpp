// SPDX-License-Identifier: MIT
#include <algorithm>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "run_cli.h"

namespace hx::cli {

namespace {

/// Every command with input that it cannot work with.
class BadInput : public CliTest {
  protected:
    BadInput() {
        makeProject(file_,
                    "INSERT INTO TrcpRecipe (Name) VALUES ('R'); INSERT INTO ThxVariable (Name) VALUES ('V');"
                    "INSERT INTO TrcpRecipeMember (ParentID, VarRecipe) VALUES (1, 'V');");
        export_ = folder_.file("good.json");
        EXPECT_EQ(hxrecipe({"export", file_.c_str(), export_.c_str()}).status, 0);
        list_ = write("list.csv", "W;INT\n");
    }

    struct Use {
        std::vector<const char*> arguments;
        int failure;
    };

    /// All commands that work on a project, with this one.
    std::vector<Use> uses(const std::string& project) const {
        const char* path = project.c_str();
        return {{{"list", path}, 1},
                {{"list", "--json", path}, 1},
                {{"show", path, "R"}, 1},
                {{"check", path}, 2},
                {{"where", path, "V"}, 1},
                {{"export", path, out_.c_str()}, 1},
                {{"import", path, export_.c_str()}, 1},
                {{"import", path, export_.c_str(), "--mode", "replace"}, 1},
                {{"import", path, export_.c_str(), "--dry-run"}, 1},
                {{"diff", path, file_.c_str()}, 2},
                {{"diff", file_.c_str(), path}, 2},
                {{"variables", "list", path}, 1},
                {{"variables", "import", path, list_.c_str()}, 1},
                {{"variables", "import", path, list_.c_str(), "--dry-run"}, 1}};
    }

    // Each ends with its status and this message, makes no file and leaves the project as it is.
    void expectRefused(const std::string& project, const std::string& problem) {
        const bool isFile = std::filesystem::is_regular_file(project);
        const std::string before = isFile ? contents(project) : "";
        const auto files = filesInFolder().size();
        for (const Use& use : uses(project)) {
            const Result result = hxrecipe(use.arguments);
            const std::string command = testing::PrintToString(use.arguments);
            EXPECT_EQ(result.status, use.failure) << command;
            EXPECT_EQ(result.problems, "hxrecipe: " + problem + "\n") << command;
        }
        EXPECT_TRUE(!isFile || contents(project) == before);
        EXPECT_EQ(filesInFolder().size(), files);
    }

    // Each ends with a message that names the file.
    void expectNamed(const std::string& project, std::initializer_list<std::string_view> unconcerned) {
        for (const Use& use : uses(project)) {
            if (std::ranges::find(unconcerned, use.arguments[0]) != unconcerned.end()) continue;
            const Result result = hxrecipe(use.arguments);
            const std::string command = testing::PrintToString(use.arguments);
            EXPECT_EQ(result.status, use.failure) << command;
            EXPECT_NE(result.problems.find(project), std::string::npos) << command << result.problems;
        }
    }

    std::string copy(const std::string& name, const std::string& sql) {
        const std::string path = folder_.file(name);
        std::filesystem::copy_file(file_, path);
        if (!sql.empty()) sqlite::Database(path).execute(sql);
        return path;
    }

    // What import says of this export text; the project stays as it is.
    std::string importProblem(const std::string& text) {
        const std::string in = write("bad.json", text);
        const std::string before = contents(file_);
        const Result result = hxrecipe({"import", file_.c_str(), in.c_str(), "--mode", "replace"});
        EXPECT_EQ(result.status, 1) << text.substr(0, 200);
        EXPECT_TRUE(contents(file_) == before);
        const std::string prefix = "hxrecipe: " + in + ", line 1: ";
        EXPECT_TRUE(result.problems.starts_with(prefix)) << result.problems;
        return result.problems.substr(std::min(prefix.size(), result.problems.size()));
    }
    static std::string recipes(const std::string& list) {
        return "{\"format\": \"hxrecipe\", \"version\": 1, \"recipes\": [" + list + "]}";
    }

    std::string export_, list_;
    std::string out_ = folder_.file("out.json");
};

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
    ASSERT_EQ(mkfifo(folder_.file("pipe").c_str(), 0600), 0);
    for (const std::string& path : {file_, folder, list_, folder_.file("link"), folder_.file("pipe")}) {
        const std::string problem = "hxrecipe: The file '" + path + "' exists already";
        for (const auto& arguments : {std::vector<const char*>{"new", path.c_str()},
                                      {"generate", "--recipes", "1", "--members", "1", "--big", "0", path.c_str()},
                                      {"export", file_.c_str(), path.c_str()}}) {
            const Result result = hxrecipe(arguments);
            EXPECT_EQ(result.status, 1);
            EXPECT_TRUE(result.problems.starts_with(problem)) << result.problems;
        }
    }
    EXPECT_EQ(filesInFolder().size(), 6U);
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

TEST_F(BadInput, ResultsThatCannotBeWrittenAreAFailure) {
    for (const Use& use : uses(file_)) {
        std::ofstream full("/dev/full");
        std::ostringstream problems;
        std::vector<const char*> arguments = use.arguments;
        arguments.insert(arguments.begin(), "hxrecipe");
        const int status = run(static_cast<int>(arguments.size()), arguments.data(), {full, problems});
        EXPECT_EQ(status, use.failure) << testing::PrintToString(use.arguments);
        EXPECT_EQ(problems.str(), "hxrecipe: The results cannot be written.\n");
    }
}

/// No file becomes longer than this, as on a disk that is full.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        (void)std::signal(SIGXFSZ, handler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    void (*handler_)(int);
    rlimit before_{};
};

TEST_F(BadInput, AFullDiskLeavesAllFilesAsTheyWere) {
    std::string many = "Name;Type\n";
    std::string added;
    for (int i = 0; i < 2000; ++i) {
        many += "Variable" + std::to_string(i) + ";INT\n";
        added += (i == 0 ? "{\"Name\": \"R" : ", {\"Name\": \"R") + std::to_string(i) + "\"}";
    }
    const std::string list = write("many.csv", many);
    const std::string in = write("many.json", recipes(added));
    const std::string large = folder_.file("large.hxs");
    ASSERT_EQ(hxrecipe({"new", large.c_str()}).status, 0);
    ASSERT_EQ(hxrecipe({"import", large.c_str(), in.c_str()}).status, 0);
    const std::string before = contents(file_);
    const auto files = filesInFolder().size();
    const FileSizeLimit limit(before.size());
    const std::string made = folder_.file("made");
    for (const auto& [arguments, file] :
         {std::pair{std::vector<const char*>{"import", file_.c_str(), in.c_str()}, file_},
          {{"variables", "import", file_.c_str(), list.c_str()}, file_},
          {{"export", large.c_str(), made.c_str()}, made},
          {{"generate", "--recipes", "5000", "--members", "5000", "--big", "0", made.c_str()}, made}}) {
        const Result result = hxrecipe(arguments);
        EXPECT_EQ(result.status, 1) << testing::PrintToString(arguments);
        EXPECT_EQ(result.results, "");
        EXPECT_NE(result.problems.find("'" + file), std::string::npos) << result.problems;
        EXPECT_EQ(result.problems.find(", line"), std::string::npos) << result.problems;
    }
    EXPECT_TRUE(contents(file_) == before);
    EXPECT_EQ(filesInFolder().size(), files);
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

TEST_F(BadInput, DiffReadsAPipeAsAnExport) {
    const std::string pipe = folder_.file("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const std::string text = contents(export_);
    // A writer of its own, as a shell starts one.
    const pid_t writer = fork();
    if (writer == 0) {
        std::ofstream(pipe) << text;
        _exit(0);
    }
    EXPECT_EQ(hxrecipe({"diff", file_.c_str(), pipe.c_str()}).results, "No differences.\n");
    waitpid(writer, nullptr, 0);
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
