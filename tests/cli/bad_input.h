// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <gmock/gmock.h>

#include "run_cli.h"

namespace hx::cli {

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

    // Each command that makes a file refuses to make this one.
    void expectTaken(const std::string& path) {
        const std::string problem = "hxrecipe: The file '" + path + "' exists already";
        for (const auto& arguments : {std::vector<const char*>{"new", path.c_str()},
                                      {"generate", "--recipes", "1", "--members", "1", "--big", "0", path.c_str()},
                                      {"export", file_.c_str(), path.c_str()}}) {
            const Result result = hxrecipe(arguments);
            EXPECT_EQ(result.status, 1);
            EXPECT_TRUE(result.problems.starts_with(problem)) << result.problems;
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

}  // namespace hx::cli
