// SPDX-License-Identifier: MIT
#include "project/project_data.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "ado/recordset.h"
#include "support/faulty_provider.h"
#include "support/memory_provider.h"
#include "support/recipe_draft.h"
#include "support/temporary_folder.h"

namespace hx::project {
namespace {

using automation::Error;
using automation::Null;
using automation::Variant;
using Names = std::vector<std::string>;
using Values = std::vector<std::pair<std::string, Variant>>;

ProjectData readFrom(ado::Provider& provider, const std::string& path) {
    Reader reader(provider, path, Reader::Damage::read);
    return readProject(reader);
}

Names variablesOf(const ProjectData& data, std::size_t recipe) {
    Names names;
    for (const std::size_t number : data.recipes()[recipe].variables) names.emplace_back(data.variable(number));
    return names;
}

class ProjectDataTest : public testing::Test {
  protected:
    ProjectDataTest() { sqlite::createProject(path); }

    std::shared_ptr<ado::Connection> connect() {
        auto connection = std::make_shared<ado::Connection>(provider);
        connection->open("Data Source=" + path + ";Mode=Read|Write|Share Deny None;");
        return connection;
    }
    void add(const std::string& table, const Values& values) {
        ado::Recordset rows;
        rows.open(table, connect());
        rows.addNew(values);
    }
    void addMember(std::int32_t parent, const Variant& variable, std::int32_t child = 0) {
        add("TrcpRecipeMember", {{"ParentID", parent}, {"VarRecipe", variable}, {"ChildID", child}});
    }
    [[nodiscard]] ProjectData read() { return readFrom(provider, path); }
    std::string refusal() {
        try {
            (void)read();
        } catch (const Error& error) {
            return error.description();
        }
        return "no error";
    }

    support::TemporaryFolder folder;
    std::string path = folder.file("plant.hxs");
    sqlite::Provider provider;
};

TEST_F(ProjectDataTest, AnEmptyProjectHasNoRecipes) {
    EXPECT_TRUE(read().recipes().empty());
    EXPECT_EQ(read().find(1), std::nullopt);
}

TEST_F(ProjectDataTest, RecipesAreOrderedByName) {
    for (const char* name : {"Tank 10", "Öl", "Tank 2", "apfel"}) add("TrcpRecipe", {{"Name", name}});
    const ProjectData data = read();
    Names names;
    for (const RecipeData& recipe : data.recipes()) names.emplace_back(recipe.name);
    EXPECT_EQ(names, (Names{"apfel", "Öl", "Tank 2", "Tank 10"}));
    EXPECT_EQ(data.find(1), 3u);
    EXPECT_EQ(data.find(4), 0u);
    EXPECT_EQ(data.find(5), std::nullopt);
}

TEST_F(ProjectDataTest, EveryColumnIsRead) {
    add("TrcpRecipe", {{"Name", "Cola"},
                       {"VarRecipeName", "a"},
                       {"VarDescription", "b"},
                       {"FilePath", "c"},
                       {"FileExtension", "d"},
                       {"Enabled", true},
                       {"Comment", "e"},
                       {"VarLoad", "f"},
                       {"VarSave", "g"},
                       {"VarRead", "h"},
                       {"VarWrite", "i"},
                       {"StandardValue", 1.5},
                       {"VarSetValue", "j"},
                       {"SaveSubRecipes", true},
                       {"SaveChanges", false},
                       {"CryptEngine", true},
                       {"Options", 2}});
    const ProjectData data = read();
    const RecipeData& recipe = data.recipes().at(0);
    EXPECT_EQ(
        (std::vector<std::string_view>{recipe.fileNameVariable, recipe.descriptionVariable, recipe.filePath,
                                       recipe.fileExtension, recipe.comment, recipe.loadTrigger, recipe.saveTrigger,
                                       recipe.readTrigger, recipe.writeTrigger, recipe.factorVariable}),
        (std::vector<std::string_view>{"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"}));
    EXPECT_EQ(recipe.normFactor, 1.5);
    EXPECT_TRUE(recipe.enabled && recipe.saveSubRecipes && recipe.crypted && recipe.saveThrough);
    EXPECT_FALSE(recipe.saveChanges || recipe.writeThrough);
}

TEST_F(ProjectDataTest, WhatIsMissingInTheDatabaseIsEmptyFalseOrZero) {
    Values values = {{"Name", "Cola"}, {"StandardValue", Null{}}, {"Options", Null{}}};
    for (const char* name : {"VarRecipeName", "VarDescription", "FilePath", "FileExtension", "Comment", "VarLoad",
                             "VarSave", "VarRead", "VarWrite", "VarSetValue"}) {
        values.emplace_back(name, Null{});
    }
    add("TrcpRecipe", values);
    addMember(1, Null{});
    const ProjectData data = read();
    const RecipeData& recipe = data.recipes().at(0);
    for (const auto text : {recipe.comment, recipe.filePath, recipe.factorVariable, recipe.loadTrigger})
        EXPECT_EQ(text, "");
    EXPECT_EQ(recipe.normFactor, 0);
    EXPECT_FALSE(recipe.enabled || recipe.writeThrough || recipe.saveThrough);
    EXPECT_EQ(variablesOf(data, 0), Names{""});
}

TEST_F(ProjectDataTest, MembersKeepTheOrderInWhichTheyWereAdded) {
    for (const char* name : {"A", "B"}) add("TrcpRecipe", {{"Name", name}});
    addMember(2, "z");
    addMember(1, "y");
    addMember(2, "Datei.A", 1);
    addMember(2, "x");
    addMember(2, "", 7);
    const ProjectData data = read();
    EXPECT_EQ(variablesOf(data, 0), Names{"y"});
    EXPECT_EQ(variablesOf(data, 1), (Names{"z", "x"}));
    ASSERT_EQ(data.recipes()[1].subRecipes.size(), 2u);
    EXPECT_EQ(data.recipes()[1].subRecipes[0].child, 1);
    EXPECT_EQ(data.recipes()[1].subRecipes[0].fileVariable, "Datei.A");
    EXPECT_EQ(data.recipes()[1].subRecipes[1].child, 7);
}

TEST_F(ProjectDataTest, MembersOfNoRecipeAreCounted) {
    add("TrcpRecipe", {{"Name", "A"}});
    addMember(1, "x");
    addMember(5, "y");
    addMember(-1, "z", 1);
    EXPECT_EQ(read().orphans(), 2u);
    EXPECT_EQ(variablesOf(read(), 0), Names{"x"});
}

TEST(ForeignProject, KeepsTheMembersOfRecipesWhoseIdsAppearTwice) {
    support::RecipeDraft first, second, third;
    first.id = second.id = 1;
    third.id = 3;
    first.name = "A";
    second.name = "B";
    third.name = "C";
    first.variables = {"x", "y"};
    third.variables = {"z"};
    const ProjectData data = support::projectOf({third, second, first});
    EXPECT_EQ(variablesOf(data, 0), (Names{"x", "y"}));
    EXPECT_EQ(variablesOf(data, 1), Names{});
    EXPECT_EQ(variablesOf(data, 2), Names{"z"});
    EXPECT_EQ(data.orphans(), 0U);
}

TEST_F(ProjectDataTest, AnOpenEditorGoesOnWorkingWhileTheProjectIsRead) {
    add("TrcpRecipe", {{"Name", "A"}});
    const auto editor = connect();
    ado::Recordset rows;
    rows.open("TrcpRecipe", editor);
    rows.field("Comment").setValue("new");
    editor->beginTrans();
    rows.update();
    EXPECT_EQ(read().recipes()[0].comment, "");
    editor->commitTrans();
    EXPECT_EQ(read().recipes()[0].comment, "new");
}

TEST_F(ProjectDataTest, TheFileIsNotHeldAndNotChanged) {
    add("TrcpRecipe", {{"Name", "A"}});
    const auto before = std::filesystem::last_write_time(path);
    const ProjectData data = read();
    EXPECT_EQ(std::filesystem::last_write_time(path), before);
    const auto exclusive = connect();
    exclusive->beginTrans();
    ado::Recordset rows;
    rows.open("TrcpRecipe", exclusive);
    rows.remove();
    exclusive->commitTrans();
    EXPECT_TRUE(read().recipes().empty());
}

TEST_F(ProjectDataTest, AMissingFileIsRefusedAndNotMade) {
    path = folder.file("none.hxs");
    EXPECT_EQ(refusal(), "Could not find file '" + path + "'.");
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(ProjectDataTest, ADamagedFileIsRefused) {
    std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(100);
    file << std::string(200, '\xFF');
    file.close();
    EXPECT_EQ(refusal(), "The file '" + path + "' is damaged.");
}

TEST(ProjectDataFaults, AFailureHalfWayThroughReachesTheCaller) {
    support::MemoryProvider memory;
    memory.add("plant.hxs");
    support::FaultPlan faults;
    support::FaultyProvider provider(memory, faults);
    {
        const auto connection = std::make_shared<ado::Connection>(provider);
        connection->open("Data Source=plant.hxs");
        ado::Recordset rows;
        rows.open("TrcpRecipe", connection);
        rows.addNew(std::array{std::pair<std::string, Variant>("Name", "A")});
    }
    EXPECT_EQ(readFrom(provider, "plant.hxs").recipes().size(), 1u);
    for (const auto kind : {support::FaultPlan::Kind::connect, support::FaultPlan::Kind::open,
                            support::FaultPlan::Kind::keys, support::FaultPlan::Kind::read}) {
        faults.arm(1, kind);
        EXPECT_THROW((void)readFrom(provider, "plant.hxs"), Error) << static_cast<int>(kind);
    }
}

}  // namespace
}  // namespace hx::project
