// SPDX-License-Identifier: MIT
#include "project/variable_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "project/variable_changes.h"
#include "project/variable_entry.h"
#include "support/temporary_folder.h"

namespace hx::project {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Column = VariableTable::Column;
using Texts = std::vector<std::string>;

class ProjectVariables : public testing::Test {
  protected:
    void SetUp() override {
        sqlite::createProject(path_);
        execute(
            "INSERT INTO ThxVariable (Name, Type, Comment) VALUES ('Ventil', 'BOOL', 'am Tank'), "
            "('Größe', 'INT', NULL), ('Pumpe', 'BOOL', ''), ('datei', 'STRING', 'alt');"
            "INSERT INTO TrcpRecipe (Name, VarLoad, VarRecipeName) VALUES ('A', 'GRÖSSE', 'ventil'), ('B', 'Ventil', "
            "'');"
            "INSERT INTO TrcpRecipeMember (ParentID, ChildID, VarRecipe) VALUES (1, 0, 'Ventil'), (1, 0, 'größe'), "
            "(2, 1, 'Datei'), (2, 0, 'VENTIL'), (1, 0, 'Fremd');");
    }
    void execute(const std::string& sql) { sqlite::Database(path_).execute(sql); }
    [[nodiscard]] VariableTable table() {
        Reader reader(provider_, path_);
        return VariableTable(reader);
    }
    [[nodiscard]] std::unique_ptr<ado::Session> writing() {
        return provider_.connect("Data Source=\"" + path_ + "\";Mode=Read|Write;");
    }
    [[nodiscard]] Texts named(const VariableTable::Wish& wish) {
        const VariableTable all = table();
        Texts names;
        for (const std::uint32_t number : all.arranged(wish)) names.emplace_back(all.text(number, Column::name));
        return names;
    }

    support::TemporaryFolder folder_;
    std::string path_ = folder_.file("plant.hxs");
    sqlite::Provider provider_;
};

TEST_F(ProjectVariables, AreReadWithTheNumberOfRecipesThatUseEach) {
    const VariableTable all = table();
    Texts rows;
    for (const std::uint32_t number : all.arranged({})) {
        std::string row = std::to_string(all.key(number));
        for (const Column column : {Column::name, Column::type, Column::comment})
            row += "|" + std::string(all.text(number, column));
        rows.push_back(row + "|" + std::to_string(all.uses(number)));
    }
    EXPECT_THAT(rows,
                ElementsAre("4|datei|STRING|alt|1", "2|Größe|INT||1", "3|Pumpe|BOOL||0", "1|Ventil|BOOL|am Tank|2"));
    EXPECT_EQ(all.key(all.find("PUMPE").value()), 3);
    EXPECT_FALSE(all.find("Pump"));
    EXPECT_FALSE(VariableTable().find("Pumpe"));
}

TEST_F(ProjectVariables, AreFilteredColumnByColumn) {
    VariableTable::Wish wish;
    EXPECT_TRUE(wish.isAll());
    wish.words[1] = automation::WordFilter("bool");
    EXPECT_THAT(named(wish), ElementsAre("Pumpe", "Ventil"));
    wish.words[2] = automation::WordFilter("tank -kessel");
    EXPECT_FALSE(wish.isAll());
    EXPECT_THAT(named(wish), ElementsAre("Ventil"));
    wish = {};
    wish.uses = 0;
    EXPECT_THAT(named(wish), ElementsAre("Pumpe"));
    wish.uses = 3;
    EXPECT_THAT(named(wish), IsEmpty());
}

TEST_F(ProjectVariables, AreOrderedByEachColumnAndThenByTheirNames) {
    const auto ordered = [this](Column column, bool descending = false) { return named({{}, {}, column, descending}); };
    EXPECT_THAT(ordered(Column::name, true), ElementsAre("Ventil", "Pumpe", "Größe", "datei"));
    EXPECT_THAT(ordered(Column::type), ElementsAre("Pumpe", "Ventil", "Größe", "datei"));
    EXPECT_THAT(ordered(Column::type, true), ElementsAre("datei", "Größe", "Pumpe", "Ventil"));
    EXPECT_THAT(ordered(Column::comment), ElementsAre("Größe", "Pumpe", "datei", "Ventil"));
    EXPECT_THAT(ordered(Column::uses), ElementsAre("Pumpe", "datei", "Größe", "Ventil"));
    EXPECT_THAT(ordered(Column::uses, true), ElementsAre("Ventil", "datei", "Größe", "Pumpe"));
}

TEST_F(ProjectVariables, HaveTheKeysOfTheirRowsWhereTheTablesKeyIsAnotherColumn) {
    execute(
        "DROP TABLE ThxVariable; CREATE TABLE ThxVariable (ID INT, Name VARCHAR(255), Type VARCHAR(20), Comment "
        "VARCHAR(255)); INSERT INTO ThxVariable VALUES (2, 'A', 'INT', ''), (1, 'B', 'INT', '');");
    const VariableTable all = table();
    removeVariables(*writing(), std::array{all.key(all.find("B").value())});
    EXPECT_THAT(named({}), ElementsAre("A"));
}

TEST_F(ProjectVariables, AreRenamedWhereverTheyAreNamed) {
    const auto session = std::shared_ptr(writing());
    Reader reader(session, path_);
    std::vector<Replacement> all{{&variableTypeColumn, 1, "BOOL", "BYTE"}};
    for (Replacement& one : renamingOf(reader, "ventil", "Klappe")) all.push_back(std::move(one));
    EXPECT_EQ(all.size(), 5U);
    replaceTexts(*session, all);
    EXPECT_THAT(renamingOf(reader, "Ventil", "x"), IsEmpty());
    Texts places;
    for (const Replacement& one : renamingOf(reader, "klappe", "x"))
        places.push_back(std::string(one.column->name) + " " + std::to_string(one.row) + " " + one.before);
    EXPECT_THAT(places,
                ElementsAre("VarRecipeName 1 Klappe", "VarLoad 2 Klappe", "VarRecipe 1 Klappe", "VarRecipe 4 Klappe"));
    EXPECT_EQ(findVariable(reader, "VENTIL")->type, "BYTE");
    EXPECT_FALSE(findVariable(reader, "Klappe"));
}

// What is shown as nothing may be an empty text or none.
TEST_F(ProjectVariables, GetACommentWhereThereWasNone) {
    const SearchedColumn& comment = searchedColumns.back();
    const auto session = writing();
    replaceTexts(*session, std::array{Replacement{&comment, 2, "", "neu"}, Replacement{&comment, 3, "", "auch"}});
    const VariableTable all = table();
    EXPECT_EQ(all.text(all.find("Größe").value(), Column::comment), "neu");
    EXPECT_EQ(all.text(all.find("Pumpe").value(), Column::comment), "auch");
    EXPECT_THROW(replaceTexts(*session, std::array{Replacement{&comment, 2, "", "nochmals"}}), automation::Error);
}

TEST_F(ProjectVariables, AreRemovedAllOrNone) {
    EXPECT_THROW(removeVariables(*writing(), std::array<ado::Key, 2>{1, 99}), automation::Error);
    EXPECT_EQ(table().size(), 4U);
    removeVariables(*writing(), std::array<ado::Key, 2>{1, 3});
    EXPECT_THAT(named({}), ElementsAre("datei", "Größe"));
}

}  // namespace
}  // namespace hx::project
