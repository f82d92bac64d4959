// SPDX-License-Identifier: MIT
#include "history/surprise.h"

#include <gtest/gtest.h>

#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "history/recording_provider.h"
#include "support/faulty_provider.h"
#include "support/temporary_folder.h"

namespace hx::history {
namespace {

struct Surprises : testing::Test {
    Surprises() {
        sqlite::createProject(project);
        session = recording.connect("Data Source=\"" + project + "\";");
        history->surprised = [this](const Surprise& surprise) {
            told.push_back(surprise.text(automation::Language::english));
        };
        for (const char* name : {"A", "B", "C"}) add("TrcpRecipe", {{1, automation::Variant(name)}});
    }
    ado::Key add(const char* table, const std::vector<ado::ColumnValue>& values) const {
        return session->open(table, ado::adCmdTable)->insert(values);
    }
    ado::Key member(std::int32_t parent, const std::string& variable, std::int32_t child = 0) const {
        return add(
            "TrcpRecipeMember",
            {{1, automation::Variant(parent)}, {2, automation::Variant(variable)}, {3, automation::Variant(child)}});
    }
    void execute(const std::string& command) const { (void)session->open(command, ado::adCmdText); }

    support::TemporaryFolder folder;
    const std::string project = folder.file("line.hxs");
    sqlite::Provider provider;
    const std::shared_ptr<History> history = std::make_shared<History>(provider, project, folder.file("cache"));
    RecordingProvider recording{provider, [this](const std::string&) { return history; }};
    std::unique_ptr<ado::Session> session;
    std::vector<std::string> told;
};

using Texts = std::vector<std::string>;

TEST_F(Surprises, ARecipeThatIncludesItself) {
    const ado::Key key = member(1, "F", 2);
    EXPECT_EQ(told, Texts{});
    (void)member(2, "F", 2);
    EXPECT_EQ(told, (Texts{"“B” includes itself now."}));
    const ado::ColumnValue name{2, automation::Variant("G")};
    session->open("TrcpRecipeMember", ado::adCmdTable)->update(key, {&name, 1}, {});
    EXPECT_EQ(told.size(), 1U) << told.back();
}

TEST_F(Surprises, ARecipeThatIncludesItselfThroughOthers) {
    (void)member(1, "F", 2);
    (void)member(2, "F", 3);
    EXPECT_EQ(told, Texts{});
    const ado::Key key = member(3, "F", 3);
    told.clear();
    const ado::ColumnValue child{3, automation::Variant(1)};
    session->open("TrcpRecipeMember", ado::adCmdTable)->update(key, {&child, 1}, {});
    EXPECT_EQ(told, (Texts{"“C” includes itself now."}));
}

TEST_F(Surprises, ACycleElsewhereIsNotToldAgain) {
    (void)member(1, "F", 1);
    told.clear();
    (void)member(2, "F", 1);
    EXPECT_EQ(told, Texts{});
}

TEST_F(Surprises, ADeletedRecipeThatIsStillIncluded) {
    (void)member(1, "F", 3);
    (void)member(2, "F", 3);
    execute("DELETE * FROM TrcpRecipe WHERE ID = 3");
    EXPECT_EQ(told, (Texts{"“C” was deleted. Members that still name it as a sub-recipe: 2."}));
    execute("DELETE * FROM TrcpRecipe WHERE ID = 2");
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(Surprises, SubRecipesThatWentWithAChoiceOfVariables) {
    (void)member(1, "V");
    (void)member(1, "F", 2);
    (void)member(1, "G", 3);
    session->beginTransaction();
    execute("DELETE * FROM TrcpRecipeMember WHERE ParentID = 1");
    (void)member(1, "W");
    session->commit();
    EXPECT_EQ(told, (Texts{"The choice of variables has also removed sub-recipes of “A”: 2."}));
}

TEST_F(Surprises, SubRecipesThatAreDeletedAloneAreMeant) {
    (void)member(1, "V");
    (void)member(1, "F", 2);
    execute("DELETE * FROM TrcpRecipeMember WHERE ChildID = 2");
    EXPECT_EQ(told, Texts{});
}

TEST_F(Surprises, SubRecipesThatComeBackAreNotGone) {
    (void)member(1, "V");
    (void)member(1, "F", 2);
    session->beginTransaction();
    execute("DELETE * FROM TrcpRecipeMember WHERE ParentID = 1");
    (void)member(1, "V");
    (void)member(1, "F", 2);
    session->commit();
    EXPECT_EQ(told, Texts{});
}

TEST_F(Surprises, MembersThatGoWithTheirRecipeAreMeant) {
    (void)member(1, "V");
    (void)member(1, "F", 2);
    session->beginTransaction();
    execute("DELETE * FROM TrcpRecipe WHERE ID = 1");
    execute("DELETE * FROM TrcpRecipeMember WHERE ParentID = 1");
    session->commit();
    EXPECT_EQ(told, Texts{});
}

TEST_F(Surprises, NoneInAGroup) {
    const Group group(*history, {});
    (void)member(2, "F", 2);
    EXPECT_EQ(told, Texts{});
}

TEST_F(Surprises, AStepThatCannotBeLookedIntoIsKept) {
    support::FaultPlan faults;
    support::FaultyProvider faulty(provider, faults);
    RecordingProvider unsure(faulty, [this](const std::string&) { return history; });
    const auto rows = unsure.connect("Data Source=\"" + project + "\";");
    const auto recipes = rows->open("TrcpRecipe", ado::adCmdTable);
    const std::size_t before = history->steps().size();
    faults.arm(1, support::FaultPlan::Kind::open);
    const ado::ColumnValue name{1, automation::Variant("D")};
    (void)recipes->insert({&name, 1});
    EXPECT_TRUE(faults.fired());
    ASSERT_EQ(history->steps().size(), before + 1);
    EXPECT_EQ(history->steps().back().name.text(automation::Language::english), "1 rows changed");
    history->goTo(0);
    EXPECT_TRUE(session->open("TrcpRecipe", ado::adCmdTable)->keys(nullptr).empty());
}

TEST_F(Surprises, SayThemselvesInGerman) {
    const auto german = [](Surprise::Kind kind) { return Surprise{kind, "A", 2}.text(automation::Language::german); };
    EXPECT_EQ(german(Surprise::Kind::includesItself), "„A“ enthält sich jetzt selbst.");
    EXPECT_EQ(german(Surprise::Kind::includedRecipeDeleted),
              "„A“ wurde gelöscht. Elemente, die es noch als Unterrezept nennen: 2.");
    EXPECT_EQ(german(Surprise::Kind::subRecipesDropped),
              "Die Auswahl der Variablen hat auch Unterrezepte von „A“ entfernt: 2.");
}

}  // namespace
}  // namespace hx::history
