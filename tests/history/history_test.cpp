// SPDX-License-Identifier: MIT
#include <fstream>
#include <gtest/gtest.h>

#include "adapters/sqlite/project_check.h"
#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "ado/recordset.h"
#include "ado/transaction.h"
#include "automation/convert.h"
#include "history/recording_provider.h"
#include "support/error_of.h"
#include "support/temporary_folder.h"

namespace hx::history {
namespace {

using automation::Language;
using automation::Variant;
using Texts = std::vector<std::string>;
using Values = std::vector<std::pair<std::string, Variant>>;

/// A project whose changes are recorded.
class HistoryTest : public testing::Test {
  protected:
    HistoryTest() {
        sqlite::createProject(path);
        start();
    }
    void start(std::size_t mostMemory = std::size_t{64} << 20U) {
        connection.reset();
        history.reset();
        history = std::make_shared<History>(provider, path, cache.path(), mostMemory);
        connection = connect(recording);
    }
    std::shared_ptr<ado::Connection> connect(ado::Provider& through) const {
        auto made = std::make_shared<ado::Connection>(through);
        made->open("Data Source=" + path + ";Mode=Read|Write|Share Deny None;");
        return made;
    }
    std::shared_ptr<ado::Recordset> open(const std::string& source) const {
        auto rows = std::make_shared<ado::Recordset>();
        rows->open(source, connection);
        return rows;
    }
    void addRecipe(const std::string& name) const { open("TrcpRecipe")->addNew(Values{{"Name", name}}); }
    void addMember(std::int32_t recipe, const std::string& variable, std::int32_t child = 0) const {
        open("TrcpRecipeMember")->addNew(Values{{"ParentID", recipe}, {"VarRecipe", variable}, {"ChildID", child}});
    }
    void change(const std::string& source, const std::string& column, const Variant& value) const {
        const auto rows = open(source);
        rows->field(column).setValue(value);
        rows->update();
    }
    void run(const std::string& command) const { ado::Recordset().open(command, connection); }
    /// All rows of a table, as another program sees them.
    std::string stored(const std::string& table) {
        ado::Recordset rows;
        rows.open(table, connect(provider));
        std::string text;
        for (; !rows.eof(); rows.moveNext()) {
            for (std::size_t i = 0; i < rows.fieldCount(); ++i) text += automation::toText(rows.field(i).value()) + "|";
            text += "\n";
        }
        return text;
    }
    std::string all() { return stored("TrcpRecipe") + stored("TrcpRecipeMember"); }
    Texts names(Language language = Language::german) const {
        Texts texts;
        for (const Step& step : history->steps()) texts.push_back(step.name.text(language));
        return texts;
    }

    support::TemporaryFolder folder, cache;
    std::string path = folder.file("plant.hxs");
    sqlite::Provider provider;
    std::shared_ptr<History> history;
    RecordingProvider recording{provider, [this](const std::string&) { return history; }};
    std::shared_ptr<ado::Connection> connection;
};

TEST_F(HistoryTest, EachStepIsUndoneAndDoneAgain) {
    Texts states = {all()};
    const auto step = [&](const auto& action) {
        action();
        states.push_back(all());
    };
    step([&] { addRecipe("Cola"); });
    step([&] { addMember(1, "V1"); });
    step([&] { change("TrcpRecipeMember", "VarRecipe", "W"); });
    step([&] {
        connection->beginTrans();
        for (int i = 0; i < 50; ++i) addMember(1, "M" + std::to_string(i));
        connection->commitTrans();
    });
    step([&] { change("TrcpRecipe", "Name", "Fanta"); });
    step([&] { run("DELETE * FROM TrcpRecipeMember WHERE ParentID = 1"); });
    step([&] { run("UPDATE TrcpRecipe SET Comment = 'x', StandardValue = 1.5"); });
    step([&] { open("TrcpRecipe")->remove(); });
    ASSERT_EQ(history->steps().size(), states.size() - 1);
    for (std::size_t at = states.size() - 1; at > 0; --at) {
        EXPECT_EQ(all(), states[at]) << at;
        history->undo();
        EXPECT_EQ(history->position(), at - 1);
    }
    EXPECT_EQ(all(), states[0]);
    for (std::size_t at = 1; at < states.size(); ++at) {
        history->redo();
        EXPECT_EQ(all(), states[at]) << at;
    }
    history->goTo(2);
    EXPECT_EQ(all(), states[2]);
    history->goTo(7);
    EXPECT_EQ(all(), states[7]);
}

TEST_F(HistoryTest, StepsAreNamedInBothLanguages) {
    addRecipe("Cola");
    connection->beginTrans();
    addRecipe("Tee");
    addMember(2, "V1");
    addMember(2, "V2");
    connection->commitTrans();
    addMember(1, "V1");
    change("SELECT * FROM TrcpRecipeMember WHERE ParentID = 1", "VarRecipe", "W");
    addMember(1, "Datei", 2);
    change("TrcpRecipe", "Comment", "x");
    change("TrcpRecipe", "Name", "Fanta");
    run("DELETE * FROM TrcpRecipeMember WHERE ParentID = 2");
    run("UPDATE TrcpRecipeMember SET VarRecipe = VarRecipe & 'x'");
    run("DELETE * FROM TrcpRecipeMember WHERE ChildID = 2");
    run("DELETE * FROM TrcpRecipe");
    run("INSERT INTO ThxVariable (Name) VALUES ('a')");
    EXPECT_EQ(names(), (Texts{"Rezept „Cola“ angelegt", "Rezept „Tee“ angelegt, 2 Elemente",
                              "Variable „V1“ zu „Cola“ hinzugefügt", "Variable geändert: „W“ in „Cola“",
                              "Unterrezept zu „Cola“ hinzugefügt", "Rezept „Cola“ geändert",
                              "Rezept „Cola“ in „Fanta“ umbenannt", "2 Elemente aus „Tee“ gelöscht",
                              "Elemente von „Fanta“ geändert: 2", "Unterrezept aus „Fanta“ gelöscht",
                              "2 Rezepte und 0 Elemente geändert", "Variablenliste geändert: 1 Variablen"}));
    EXPECT_EQ(names(Language::english)[1], "Recipe “Tee” added, 2 elements");
}

TEST_F(HistoryTest, WhatIsRolledBackOrRefusedIsNoStep) {
    addRecipe("Cola");
    connection->beginTrans();
    addRecipe("Tee");
    connection->rollbackTrans();
    EXPECT_EQ(support::errorNumber([&] { addRecipe("COLA"); }), ado::dbErrDuplicate);
    connection->beginTrans();
    EXPECT_EQ(support::errorNumber([&] { addRecipe("cola"); }), ado::dbErrDuplicate);
    addRecipe("Saft");
    connection->commitTrans();
    EXPECT_EQ(names(), (Texts{"Rezept „Cola“ angelegt", "Rezept „Saft“ angelegt"}));
    history->undo();
    EXPECT_EQ(open("TrcpRecipe")->recordCount(), 1);
}

TEST_F(HistoryTest, ANewStepTakesThePlaceOfThoseThatWereUndone) {
    addRecipe("A");
    addRecipe("B");
    history->undo();
    addRecipe("C");
    EXPECT_EQ(names(), (Texts{"Rezept „A“ angelegt", "Rezept „C“ angelegt"}));
    EXPECT_EQ(history->position(), 2U);
    history->redo();
    EXPECT_EQ(history->position(), 2U);
}

TEST_F(HistoryTest, AGroupIsOneStep) {
    const std::string before = all();
    {
        const Group macro(*history, {StepName::Kind::named, "Makro „Reihe“", "", 0, 0, 0, 0});
        addRecipe("A");
        {
            const Group inner(*history, {StepName::Kind::named, "inner", "", 0, 0, 0, 0});
            addMember(1, "V");
        }
        change("TrcpRecipe", "Name", "B");
    }
    { const Group nothing(*history, {StepName::Kind::named, "nothing", "", 0, 0, 0, 0}); }
    EXPECT_EQ(names(), Texts{"Makro „Reihe“"});
    const std::string after = all();
    history->undo();
    EXPECT_EQ(all(), before);
    history->redo();
    EXPECT_EQ(all(), after);
}

TEST_F(HistoryTest, NothingIsUndoneWhenAnotherHasChangedTheRow) {
    addRecipe("Cola");
    addMember(1, "V");
    change("TrcpRecipe", "Comment", "mine");
    ado::Recordset rival;
    rival.open("TrcpRecipe", connect(provider));
    rival.field("Comment").setValue("theirs");
    rival.update();
    const std::string before = all();
    const auto error = support::errorOf([&] { history->undo(); });
    EXPECT_EQ(error.description(Language::german),
              "„Cola“ in TrcpRecipe wurde inzwischen geändert. Es wurde nichts zurückgenommen.");
    EXPECT_EQ(error.description(), "“Cola” in TrcpRecipe has been changed since. Nothing was undone.");
    EXPECT_EQ(all(), before);
    EXPECT_EQ(history->position(), 3U);
    rival.remove();
    EXPECT_EQ(support::errorOf([&] { history->undo(); }).description(),
              "“Cola” in TrcpRecipe has been deleted since. Nothing was undone.");
}

TEST_F(HistoryTest, ANameThatAnotherHasTakenIsSaid) {
    addRecipe("Cola");
    open("TrcpRecipe")->remove();
    ado::Recordset rival;
    rival.open("TrcpRecipe", connect(provider));
    rival.addNew(Values{{"Name", "cola"}});
    const std::string before = all();
    const auto error = support::errorOf([&] { history->undo(); });
    EXPECT_TRUE(error.description().starts_with("“Cola” in TrcpRecipe cannot be put back: ")) << error.description();
    EXPECT_EQ(all(), before);
    EXPECT_EQ(history->position(), 2U);
}

TEST_F(HistoryTest, NothingComesBackToATableWithOtherColumns) {
    addRecipe("Cola");
    open("TrcpRecipe")->remove();
    connection.reset();
    sqlite::ProjectDatabase(path).execute("ALTER TABLE TrcpRecipe ADD COLUMN Extra TEXT DEFAULT 'x'");
    EXPECT_EQ(support::errorOf([&] { history->undo(); }).description(),
              "The table TrcpRecipe has other columns by now. Nothing was undone.");
    EXPECT_EQ(stored("TrcpRecipe"), "");
    EXPECT_EQ(history->position(), 2U);
}

TEST_F(HistoryTest, NamesThatWereExchangedComeBack) {
    addRecipe("A");
    addRecipe("B");
    const std::string before = all();
    connection->beginTrans();
    run("UPDATE TrcpRecipe SET Name = 'x' WHERE ID = 1");
    run("UPDATE TrcpRecipe SET Name = 'A' WHERE ID = 2");
    run("UPDATE TrcpRecipe SET Name = 'B' WHERE ID = 1");
    connection->commitTrans();
    history->undo();
    EXPECT_EQ(all(), before);
}

TEST_F(HistoryTest, ACrashLeavesTheStepsToBeUndoneLater) {
    const std::string before = all();
    addRecipe("Cola");
    addMember(1, "V");
    addMember(1, "W");
    history->undo();
    start();
    EXPECT_EQ(names(), (Texts{"Rezept „Cola“ angelegt", "Variable „V“ zu „Cola“ hinzugefügt",
                              "Variable „W“ zu „Cola“ hinzugefügt"}));
    EXPECT_EQ(history->position(), 2U);
    EXPECT_TRUE(history->steps()[0].fromBefore);
    history->goTo(0);
    EXPECT_EQ(all(), before);
    history->goTo(2);
    addRecipe("Tee");
    EXPECT_FALSE(history->steps().back().fromBefore);
    history->close();
    start();
    EXPECT_TRUE(history->steps().empty());
}

TEST_F(HistoryTest, WithoutAJournalTheLastStepsStayInMemory) {
    const std::string file = folder.file("file");
    std::ofstream(file) << "x";
    connection.reset();
    constexpr std::size_t room = 400;
    history = std::make_shared<History>(provider, path, file, room);
    connection = connect(recording);
    for (int i = 0; i < 20; ++i) addRecipe("R" + std::to_string(i));
    history->undo();
    history->undo();
    EXPECT_EQ(open("TrcpRecipe")->recordCount(), 18);
    EXPECT_EQ(support::errorOf([&] { history->goTo(0); }).description(),
              "Memory was short when this was recorded: it cannot be undone.");
    EXPECT_GT(history->position(), 10U);
    EXPECT_EQ(static_cast<std::size_t>(open("TrcpRecipe")->recordCount()), history->position());
}

TEST_F(HistoryTest, TellsOfEachChangeOnce) {
    int told = 0;
    history->changed = [&] { ++told; };
    addRecipe("A");
    EXPECT_EQ(told, 1);
    history->undo();
    EXPECT_EQ(told, 2);
    history->goTo(7);
    history->goTo(0);
    EXPECT_EQ(told, 2);
}

TEST_F(HistoryTest, ASessionThatOutlivesTheProjectChangesItNevertheless) {
    addRecipe("A");
    history->close();
    history.reset();
    addRecipe("B");
    EXPECT_EQ(open("TrcpRecipe")->recordCount(), 2);
}

TEST_F(HistoryTest, SessionsThatReadAreNotRecorded) {
    ado::Recordset rows;
    auto reading = std::make_shared<ado::Connection>(recording);
    reading->open("Data Source=" + path + ";Mode=Read;");
    rows.open("TrcpRecipe", reading);
    EXPECT_EQ(rows.recordCount(), 0);
    EXPECT_TRUE(history->steps().empty());
}

}  // namespace
}  // namespace hx::history
