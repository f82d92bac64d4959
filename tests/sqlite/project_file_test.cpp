// SPDX-License-Identifier: MIT

// New projects.
#include <algorithm>
#include <filesystem>
#include <fstream>

#include "project_fixture.h"
#include "support/memory_shortage.h"

namespace hx::sqlite {

namespace {

namespace fs = std::filesystem;

class ProjectFile : public ProjectTest {
  protected:
    std::string filesInFolder() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder_.path()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        std::string text;
        for (const std::string& name : names) text += name + " ";
        return text;
    }
};

TEST_F(ProjectFile, CarriesItsMarkAndItsVersion) {
    RawFile file(path_);
    EXPECT_EQ(file.query("PRAGMA application_id"), "1213748048");
    EXPECT_EQ(file.query("PRAGMA user_version"), "1");
    EXPECT_EQ(file.query("PRAGMA integrity_check"), "ok");
    EXPECT_EQ(file.query("PRAGMA journal_mode"), "delete");
    EXPECT_EQ(filesInFolder(), "plant.hxs ");
}

TEST_F(ProjectFile, HoldsTheRecipeTablesAndTheVariableList) {
    RawFile file(path_);
    EXPECT_EQ(file.query("SELECT name FROM sqlite_schema WHERE type='table' AND name NOT LIKE 'sqlite%' ORDER BY name"),
              "ThxVariable,TrcpRecipe,TrcpRecipeMember");
    EXPECT_EQ(file.query("SELECT name FROM pragma_table_info('TrcpRecipe') ORDER BY cid"),
              "ID,Name,VarRecipeName,VarDescription,FilePath,FileExtension,Enabled,Comment,VarLoad,VarSave,VarRead,"
              "VarWrite,StandardValue,VarSetValue,SaveSubRecipes,SaveChanges,CryptEngine,Options");
    EXPECT_EQ(file.query("SELECT name FROM pragma_table_info('TrcpRecipeMember') ORDER BY cid"),
              "ID,ParentID,VarRecipe,ChildID");
    EXPECT_EQ(file.query("SELECT name FROM pragma_table_info('ThxVariable') ORDER BY cid"), "ID,Name,Type,Comment");
}

TEST_F(ProjectFile, KeepsTheRulesOfItsColumnsWhoeverWrites) {
    RawFile file(path_);
    file.run("INSERT INTO TrcpRecipe(Name) VALUES('Cola')");
    EXPECT_EQ(sqlite3_exec(file.handle(), "INSERT INTO TrcpRecipe(Name) VALUES('cOLA')", nullptr, nullptr, nullptr),
              SQLITE_CONSTRAINT);
    EXPECT_EQ(sqlite3_exec(file.handle(), "INSERT INTO TrcpRecipe(Name) VALUES(NULL)", nullptr, nullptr, nullptr),
              SQLITE_CONSTRAINT);
    EXPECT_EQ(file.query("SELECT * FROM TrcpRecipe"), "1|Cola|||||0||||||0.0||0|0|0|0");
}

TEST_F(ProjectFile, AppearsWholeOrNotAtAllWhereverMemoryRunsOut) {
    const std::string path = folder_.file("new.hxs");
    const auto make = [&] {
        fs::remove(path);
        createProject(path);
    };
    EXPECT_GT(support::refuseEachBlock(make), 5);
    EXPECT_EQ(RawFile(path).query("PRAGMA integrity_check"), "ok");
    EXPECT_EQ(filesInFolder(), "new.hxs plant.hxs ");
}

TEST_F(ProjectFile, NeverReplacesAFile) {
    std::ofstream(folder_.file("notes.hxs")) << "my notes";
    const auto error = errorOf([&] { createProject(folder_.file("notes.hxs")); });
    EXPECT_EQ(error.number(), ado::dbErrUnspecified);
    EXPECT_EQ(error.description(), "The file '" + folder_.file("notes.hxs") + "' exists already.");
    std::string text;
    std::getline(std::ifstream(folder_.file("notes.hxs")), text);
    EXPECT_EQ(text, "my notes");
    EXPECT_EQ(filesInFolder(), "notes.hxs plant.hxs ");
}

TEST_F(ProjectFile, DoesNotFollowALinkThatLeadsNowhere) {
    fs::create_symlink("nowhere.hxs", folder_.file("link.hxs"));
    EXPECT_EQ(errorOf([&] { createProject(folder_.file("link.hxs")); }).number(), ado::dbErrUnspecified);
    EXPECT_EQ(filesInFolder(), "link.hxs plant.hxs ");
}

TEST_F(ProjectFile, SaysInGermanTooThatThePathIsTaken) {
    const std::string path = folder_.file("plant.hxs");
    EXPECT_EQ(errorOf([&] { createProject(path); }).description(automation::Language::german),
              "Die Datei '" + path + "' gibt es schon.");
}

TEST_F(ProjectFile, NeedsAFolder) {
    const std::string path = folder_.file("no/such/folder.hxs");
    EXPECT_EQ(errorOf([&] { createProject(path); }).description(),
              "The file '" + path + "' cannot be written: No such file or directory.");
    EXPECT_EQ(filesInFolder(), "plant.hxs ");
}

TEST_F(ProjectFile, HasTheUsualPermissions) {
    std::ofstream(folder_.file("usual")) << "x";
    EXPECT_EQ(fs::status(path_).permissions(), fs::status(folder_.file("usual")).permissions());
}

TEST_F(ProjectFile, ADraftThatIsNotPublishedLeavesNothing) {
    {
        ProjectDraft draft(folder_.file("draft.hxs"));
        draft.createTables(false);
        EXPECT_NE(filesInFolder(), "plant.hxs ");
    }
    EXPECT_EQ(filesInFolder(), "plant.hxs ");
}

TEST_F(ProjectFile, ADraftDoesNotReplaceAFileThatAppearedMeanwhile) {
    {
        ProjectDraft draft(folder_.file("draft.hxs"));
        draft.createTables(false);
        draft.createIndexes();
        std::ofstream(folder_.file("draft.hxs")) << "mine";
        EXPECT_EQ(errorOf([&] { draft.publish(); }).description(),
                  "The file '" + folder_.file("draft.hxs") + "' exists already.");
    }
    EXPECT_EQ(fs::file_size(folder_.file("draft.hxs")), 4U);
    EXPECT_EQ(filesInFolder(), "draft.hxs plant.hxs ");
}

TEST_F(ProjectFile, VariablesHaveATableOfTheirOwn) {
    const auto connection = connect();
    const auto variables = open(connection, "ThxVariable");
    variables->addNew(Values{{"Name", "Mischer1.Temperatur.Soll"}, {"Type", "REAL"}});
    EXPECT_EQ(errorOf([&] {
                  variables->addNew(Values{{"Name", "MISCHER1.temperatur.soll"}});
              }).number(),
              ado::dbErrDuplicate);
    EXPECT_EQ(column(*variables, "Type"), "REAL");
}

}  // namespace

}  // namespace hx::sqlite
