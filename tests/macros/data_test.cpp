// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adapters/headless/host.h"
#include "adapters/lua/engine.h"
#include "adapters/sqlite/project_check.h"
#include "adapters/sqlite/project_file.h"
#include "macros/globals.h"
#include "support/memory_provider.h"
#include "support/temporary_folder.h"

namespace hx::macros {
namespace {

using testing::HasSubstr;

/// A studio with a project open that nobody clicks in.
class OpenProject : public Studio {
  public:
    explicit OpenProject(std::string file) : file_(std::move(file)) { sqlite::createProject(file_); }
    [[nodiscard]] std::string pathOf(const std::string& path) const override { return path; }
    void newProject(const std::string&) override {}
    void openProject(const std::string&) override {}
    void closeProject() override {}
    [[nodiscard]] std::string file() const override { return file_; }
    [[nodiscard]] std::shared_ptr<host::CHX4Extensibility> addIn() const override { return nullptr; }
    [[nodiscard]] automation::ObjectRef editorWindow() override { return nullptr; }
    [[nodiscard]] std::vector<Node> nodes() override { return {}; }
    [[nodiscard]] host::NodeEvent eventOf(const std::string&) override { return {}; }
    [[nodiscard]] std::string selected() const override { return {}; }
    void select(const std::string&) override {}
    void showExpanded(const std::string&) override {}
    [[nodiscard]] hosting::ProjectRegistry& registry() override { return registry_; }
    [[nodiscard]] bool keepsRegistry() const override { return false; }
    [[nodiscard]] forms::Script& script() override { return host_.script; }
    [[nodiscard]] forms::Record& record() override { return host_.record; }
    [[nodiscard]] hosting::Components& components() override { return host_.components; }

  private:
    std::string file_;
    support::MemoryProvider provider_;
    headless::Host host_{provider_};
    hosting::ProjectRegistry registry_{host_.registry};
};

/// Macros that may take 32 MB.
class MacroData : public testing::Test {
  protected:
    MacroData() { defineData(engine_, studio_); }
    /// What the macro fails with; empty when it does not.
    std::string failure(const std::string& text) {
        try {
            engine_.run(text, "test.lua");
        } catch (const lua::MacroError& error) {
            return error.what();
        }
        return {};
    }
    [[nodiscard]] std::int64_t variables() const {
        return sqlite::ProjectDatabase(studio_.file()).number("SELECT count(*) FROM ThxVariable");
    }

    support::TemporaryFolder folder_;
    OpenProject studio_{folder_.file("plant.hxs")};
    lua::Engine engine_{{.print = [](std::string_view) {}, .memoryLimit = std::size_t{32} << 20U}};
};

TEST_F(MacroData, RowsOfAQueryCountAsTheMacrosMemory) {
    const auto rows = [](const char* count) {
        return "project.Query('WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
               std::string(count) + ") SELECT i AS x FROM n')";
    };
    EXPECT_EQ(failure("assert(#" + rows("1000") + " == 1000)"), "");
    EXPECT_THAT(failure(rows("1000000")), HasSubstr("not enough memory"));
}

TEST_F(MacroData, WhatAQueryHoldsWhileItRunsCountsAsTheMacrosMemory) {
    EXPECT_THAT(failure("project.Query('WITH RECURSIVE n(i) AS (SELECT 1 UNION SELECT i + 1 FROM n) "
                        "SELECT count(*) AS x FROM n')"),
                HasSubstr("not enough memory"));
}

TEST_F(MacroData, NamesOfVariablesCountAsTheMacrosMemoryAsOftenAsTheyAreGiven) {
    EXPECT_THAT(failure("local name, names = ('x'):rep(1 << 20), {}\n"
                        "for i = 1, 100 do names[i] = name end studio.SetVariables(names)"),
                HasSubstr("not enough memory"));
    EXPECT_EQ(variables(), 0);
    EXPECT_EQ(failure("studio.SetVariables({'A', 'B'})"), "");
    EXPECT_EQ(variables(), 2);
}

TEST_F(MacroData, OfAProjectThatIsNoneAreNotRead) {
    sqlite::Database(studio_.file())
        .execute(
            "DROP TABLE ThxVariable; CREATE VIEW ThxVariable AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i "
            "FROM n) SELECT i AS Name FROM n");
    for (const char* call : {"studio.Variables()", "studio.SetVariables({})", "project.Query('SELECT 1')"}) {
        EXPECT_THAT(failure(call), HasSubstr("\"ThxVariable\" in it is no table")) << call;
    }
}

}  // namespace
}  // namespace hx::macros
