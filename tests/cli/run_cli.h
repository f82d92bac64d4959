// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "adapters/sqlite/database.h"
#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "ado/recordset.h"
#include "automation/convert.h"
#include "cli/command_line.h"
#include "support/temporary_folder.h"

namespace hx::cli {

/// Tests that run hxrecipe in a folder of their own.
class CliTest : public testing::Test {
  protected:
    struct Result {
        int status;
        std::string results;
        std::string problems;
    };

    static Result hxrecipe(std::vector<const char*> arguments, bool terminal = false) {
        arguments.insert(arguments.begin(), "hxrecipe");
        std::ostringstream results;
        std::ostringstream problems;
        const Output output{results, problems, terminal};
        const int status = run(static_cast<int>(arguments.size()), arguments.data(), output);
        return {status, results.str(), problems.str()};
    }

    /// A project of a sample in `folder`, as its README says.
    static void makeSample(const std::string& folder, const std::string& path) {
        const std::string variables = folder + "/variables.csv", recipes = folder + "/recipes.json";
        for (const auto& arguments : {std::vector<const char*>{"new", path.c_str()},
                                      {"variables", "import", path.c_str(), variables.c_str()},
                                      {"import", path.c_str(), recipes.c_str()}}) {
            const Result result = hxrecipe(arguments);
            EXPECT_EQ(result.status, 0) << result.problems;
        }
    }

    std::string write(const std::string& name, const std::string& text) {
        std::filesystem::create_directories(std::filesystem::path(folder_.file(name)).parent_path());
        std::ofstream(folder_.file(name), std::ios::binary) << text;
        return folder_.file(name);
    }

    static std::string contents(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    /// A new project after these statements.
    static void makeProject(const std::string& path, const std::string& sql) {
        sqlite::createProject(path);
        sqlite::Database(path).execute(sql);
    }

    /// All values of all rows: columns joined by "|", rows by ",".
    static std::string query(const std::string& file, const std::string& source) {
        sqlite::Provider provider;
        const auto connection = std::make_shared<ado::Connection>(provider);
        connection->open("Data Source=" + file);
        ado::Recordset recordset;
        recordset.open(source, connection);
        std::string text;
        for (; !recordset.eof(); recordset.moveNext()) {
            if (!text.empty()) text += ",";
            for (std::size_t i = 0; i < recordset.fieldCount(); ++i) {
                text += (i > 0 ? "|" : "") + automation::toText(recordset.field(i).value());
            }
        }
        return text;
    }

    std::vector<std::string> filesInFolder() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }

    support::TemporaryFolder folder_;
    std::string file_ = folder_.file("plant.hxs");
};

}  // namespace hx::cli
