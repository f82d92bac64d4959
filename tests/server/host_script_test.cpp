// SPDX-License-Identifier: MIT
// A studio in a scripting language, and what is in its project afterwards.
#include <gmock/gmock.h>

#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "com/script_host.h"
#include "com/server_library.h"
#include "project/reader.h"
#include "project/schema.h"
#include "support/temporary_folder.h"

namespace hx::server {
namespace {

TEST(AStudioInAScript, DrivesTheAddInThroughADay) {
    const support::TemporaryFolder folder;
    const std::filesystem::path place = std::filesystem::path(folder.path()).make_preferred();
    sqlite::createProject((place / "Plant.hxs").string());
    const com::Registered registered(L"HXRecipeEditor.dll");
    ASSERT_EQ(com::outputOfScript(HX_HOST_SCRIPT, place.wstring()), "done\n");

    sqlite::Provider provider;
    project::Reader reader(provider, (place / "Plant.hxs").string());
    std::vector<std::string> names;
    for (const auto& recipe : reader.recipes()) names.push_back(recipe.name);
    EXPECT_THAT(names, testing::ElementsAre("Kühlen €"));
    std::vector<std::string> variables;
    const auto note = [&](project::Row row) { variables.emplace_back(row[0].text); };
    reader.read(project::schema::memberTable, std::array{project::schema::member::varRecipe}, note);
    EXPECT_THAT(variables, testing::ElementsAre("Tank.Level", "Tank.Heat"));
}

}  // namespace
}  // namespace hx::server
