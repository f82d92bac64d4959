// SPDX-License-Identifier: MIT

// Whatever the disk does: a change is stored whole or not at all, and what was reported as stored is.
#include <filesystem>

#include "adapters/sqlite/database.h"
#include "fault_disk.h"
#include "project_fixture.h"

namespace hx::sqlite {

namespace {

namespace fs = std::filesystem;
using Fault = FaultDisk::Fault;

class Durability : public ProjectTest {
  protected:
    Durability() {
        const auto connection = connect();
        connection->beginTrans();
        const auto members = open(connection, "TrcpRecipeMember");
        for (int i = 0; i < 400; ++i)
            members->addNew(member("a variable with a name of some length " + std::to_string(i)));
        open(connection, "TrcpRecipe")->addNew(Values{{"Name", "Cola"}});
        connection->commitTrans();
        connection->close();
        fs::copy_file(path_, pristine_);
    }

    static Values member(const std::string& variable) {
        return {{"ParentID", 1}, {"VarRecipe", variable}, {"ChildID", 0}};
    }

    // Replaces all members by five, as one transaction.
    static void replaceMembers(const std::shared_ptr<ado::Connection>& connection) {
        connection->beginTrans();
        ado::Recordset command;
        command.open("DELETE * FROM TrcpRecipeMember WHERE ParentID = 1", connection);
        const auto members = open(connection, "TrcpRecipeMember");
        for (int i = 0; i < 5; ++i) members->addNew(member("new " + std::to_string(i)));
        connection->commitTrans();
    }

    struct Outcome {
        bool fired;     // the fault happened
        bool reported;  // and the change said that it failed
        std::string description;
    };

    // Carries the change out on a pristine copy of the project with the fault.
    template <class Change>
    Outcome tryWith(Fault fault, int nth, Change&& change) {
        fs::remove(path_ + "-journal");
        fs::remove(path_);
        fs::copy_file(pristine_, path_);
        FaultDisk disk(fault, nth);
        const auto connection = connect();
        const auto error = errorOf([&] { change(connection); });
        if (connection->inTransaction()) (void)errorOf([&] { connection->rollbackTrans(); });
        connection->close();
        return {disk.fired(), error.number() != 0, error.description()};
    }

    // Lets the change fail at every operation in turn; `state` tells the old state from the new one.
    template <class Change>
    void failEverywhere(Fault fault, const std::string& state, Change&& change) {
        const std::string before = RawFile(pristine_).query(state);
        int faults = 0;
        for (int nth = 1;; ++nth) {
            const Outcome outcome = tryWith(fault, nth, change);
            RawFile file(path_);
            EXPECT_EQ(file.query("PRAGMA integrity_check"), "ok") << nth;
            const std::string after = file.query(state);
            if (!outcome.fired) {
                EXPECT_FALSE(outcome.reported) << outcome.description;
                EXPECT_NE(after, before);
                after_ = after;
                break;
            }
            ++faults;
            states_.push_back({nth, outcome, after});
        }
        EXPECT_GE(faults, 5);
        for (const Found& found : states_) check(found, before);
    }

    struct Found {
        int nth;
        Outcome outcome;
        std::string state;
    };

    void check(const Found& found, const std::string& before) const {
        EXPECT_TRUE(found.state == before || found.state == after_)
            << "half done after operation " << found.nth << ": " << found.state;
        // An error may be reported of a change that was stored, but never success of one that was not.
        EXPECT_TRUE(found.outcome.reported || found.state == after_) << "lost after operation " << found.nth;
        EXPECT_TRUE(!found.outcome.reported || found.outcome.description.find(path_) != std::string::npos)
            << found.outcome.description;
    }

    std::string pristine_ = folder_.file("pristine");
    std::string after_;
    std::vector<Found> states_;
};

constexpr const char* memberCount = "SELECT count(*), min(VarRecipe) FROM TrcpRecipeMember";
constexpr const char* recipeNames = "SELECT group_concat(Name || Comment) FROM TrcpRecipe";

class DurabilityOf : public Durability, public testing::WithParamInterface<Fault> {};

TEST_P(DurabilityOf, AReplacement) { failEverywhere(GetParam(), memberCount, replaceMembers); }

TEST_P(DurabilityOf, AnInsert) {
    failEverywhere(GetParam(), recipeNames, [](const std::shared_ptr<ado::Connection>& connection) {
        open(connection, "TrcpRecipe")->addNew(Values{{"Name", "Bier"}});
    });
}

TEST_P(DurabilityOf, AnUpdate) {
    failEverywhere(GetParam(), recipeNames, [](const std::shared_ptr<ado::Connection>& connection) {
        const auto recipes = open(connection, "TrcpRecipe");
        recipes->field("Comment").setValue("kalt");
        recipes->update();
    });
}

TEST_P(DurabilityOf, ADelete) {
    failEverywhere(GetParam(), memberCount, [](const std::shared_ptr<ado::Connection>& connection) {
        const auto members = open(connection, "TrcpRecipeMember");
        members->find("ID = 200");
        members->remove();
    });
}

INSTANTIATE_TEST_SUITE_P(Disk, DurabilityOf, testing::Values(Fault::full, Fault::broken, Fault::powerCut),
                         testing::PrintToStringParamName());

TEST_F(Durability, AFullDiskIsNamed) {
    const Outcome outcome = tryWith(Fault::full, 1, replaceMembers);
    EXPECT_EQ(outcome.description, "The disk with the file '" + path_ + "' is full.");
}

TEST_F(Durability, AfterATransactionWasLostNothingIsWrittenThatBelongedToIt) {
    for (int nth = 1; nth < 60; ++nth) {
        fs::remove(path_);
        fs::copy_file(pristine_, path_);
        FaultDisk disk(Fault::full, nth);
        const auto connection = connect();
        connection->beginTrans();
        ado::Recordset command;
        (void)errorOf([&] { command.open("DELETE * FROM TrcpRecipeMember WHERE ParentID = 1", connection); });
        (void)errorOf([&] { (void)open(connection, "TrcpRecipe")->addNew(Values{{"Name", "Bier"}}); });
        const bool committed = errorOf([&] { connection->commitTrans(); }).number() == 0;
        if (connection->inTransaction()) (void)errorOf([&] { connection->rollbackTrans(); });
        connection->close();
        const std::string recipes = RawFile(path_).query("SELECT count(*) FROM TrcpRecipe");
        EXPECT_TRUE(committed || recipes == "1") << nth;
        if (!disk.fired()) break;
    }
}

TEST_F(Durability, AWriteIsOnTheDiskWhenTheCallReturns) {
    const auto connection = connect();
    open(connection, "TrcpRecipe")->addNew(Values{{"Name", "Bier"}});
    // What a second reader sees without any of the first one's memory, and with its journal gone.
    EXPECT_EQ(RawFile(path_).query("SELECT count(*) FROM TrcpRecipe"), "2");
    EXPECT_FALSE(fs::exists(path_ + "-journal"));
    Database database(path_);
    EXPECT_EQ(database.number("PRAGMA synchronous"), 3);
}

TEST_F(Durability, AnInterruptedWriteOfAnotherProgramIsUndoneAtOpening) {
    (void)tryWith(Fault::powerCut, 12, replaceMembers);
    ASSERT_TRUE(fs::exists(path_ + "-journal"));
    EXPECT_EQ(open(connect(), "TrcpRecipeMember")->recordCount(), 400);
}

}  // namespace

}  // namespace hx::sqlite
