// SPDX-License-Identifier: MIT
#pragma once

#include "run_cli.h"

namespace hx::cli {

/// Tests that bring lists of variables into a project that has some.
class VariableLists : public CliTest {
  protected:
    VariableLists() {
        makeProject(file_,
                    "INSERT INTO ThxVariable (Name, Type, Comment) VALUES ('Motor.Speed', 'REAL', 'rpm'),"
                    " ('Größe', 'INT', NULL);");
    }

    Result import(const std::string& list, std::vector<const char*> options = {}) {
        std::vector<const char*> arguments = {"variables", "import", file_.c_str(), list.c_str()};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return hxrecipe(arguments);
    }

    /// All variables but those that were there.
    std::string added() { return query(file_, "SELECT Name, Type, Comment FROM ThxVariable WHERE ID > 2 ORDER BY ID"); }

    /// What the import says of this list, without the list's name; the project must stay as it is.
    std::string problem(const std::string& name, const std::string& text) {
        const std::string list = write(name, text);
        const std::string before = contents(file_);
        const Result result = import(list);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.results, "");
        EXPECT_TRUE(contents(file_) == before);
        EXPECT_EQ(filesInFolder().size(), 2U);
        const auto at = result.problems.find(list);
        if (at == std::string::npos) return result.problems;
        return result.problems.substr(at + list.size() + 2);
    }
};

}  // namespace hx::cli
