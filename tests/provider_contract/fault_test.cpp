// SPDX-License-Identifier: MIT

// Whatever operation of the database fails: the error reaches the caller, nothing is lost, nothing is half done.
#include "store.h"
#include "support/faulty_provider.h"

namespace hx::contract {

namespace {

using support::FaultPlan;

class Fault : public ProviderContract {
  protected:
    Fault() : faulty_(store_->provider(), plan_) {
        addRecipes({"A", "B", "C"});
        addVariables(1, 300);
        connection_ = std::make_shared<ado::Connection>(faulty_);
        connection_->open(connectionString());
    }

    // The rows as a healthy connection reads them.
    std::string names() { return readThrough(store_->provider(), "TrcpRecipe", "Name"); }
    std::string readThrough(ado::Provider& provider, const std::string& source, const std::string& name) {
        auto connection = std::make_shared<ado::Connection>(provider);
        connection->open(connectionString());
        Recordset recordset;
        recordset.open(source, connection);
        return column(recordset, name);
    }
    std::int32_t memberCount() {
        auto connection = std::make_shared<ado::Connection>(store_->provider());
        connection->open(connectionString());
        Recordset recordset;
        recordset.open("TrcpRecipeMember", connection);
        return recordset.recordCount();
    }

    FaultPlan plan_;
    support::FaultyProvider faulty_;
};

TEST_P(Fault, AFailedConnectLeavesTheConnectionClosed) {
    ado::Connection connection(faulty_);
    plan_.arm(1, FaultPlan::Kind::connect);
    EXPECT_EQ(errorNumber([&] { connection.open(connectionString()); }), ado::dbErrUnspecified);
    EXPECT_EQ(connection.state(), ado::adStateClosed);
    connection.open(connectionString());
    EXPECT_EQ(connection.state(), ado::adStateOpen);
}

TEST_P(Fault, AFailedOpenLeavesTheRecordsetClosed) {
    plan_.arm(1, FaultPlan::Kind::open);
    Recordset recordset;
    EXPECT_EQ(errorNumber([&] { recordset.open("TrcpRecipe", connection_); }), ado::dbErrUnspecified);
    EXPECT_EQ(recordset.state(), ado::adStateClosed);
    EXPECT_EQ(recordset.source(), "TrcpRecipe");
    recordset.open();
    EXPECT_EQ(recordset.recordCount(), 3);
}

TEST_P(Fault, AFailedReadOfKeysOrRowsCanBeRepeated) {
    for (const auto kind : {FaultPlan::Kind::keys, FaultPlan::Kind::read}) {
        const auto recordset = recipes();
        plan_.arm(1, kind);
        EXPECT_EQ(errorNumber([&] { (void)column(*recordset, "Name"); }), ado::dbErrUnspecified);
        EXPECT_EQ(column(*recordset, "Name"), "A,B,C");
    }
}

TEST_P(Fault, AFailedMoveStaysWhereItWas) {
    const auto recordset = members();
    recordset->setAbsolutePosition(128);
    plan_.arm(1, FaultPlan::Kind::read);
    EXPECT_EQ(errorNumber([&] { recordset->moveNext(); }), ado::dbErrUnspecified);
    EXPECT_EQ(recordset->absolutePosition(), 128);
    recordset->moveNext();
    EXPECT_EQ(recordset->field("VarRecipe").value(), Variant("V129"));
}

TEST_P(Fault, AFailedUpdateKeepsTheEdit) {
    const auto recordset = recipes();
    recordset->field("Name").setValue("X");
    plan_.arm(1, FaultPlan::Kind::update);
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrUnspecified);
    EXPECT_EQ(recordset->editMode(), ado::adEditInProgress);
    EXPECT_EQ(recordset->field("Name").value(), Variant("X"));
    EXPECT_EQ(names(), "A,B,C");
    recordset->update();
    EXPECT_EQ(names(), "X,B,C");
}

TEST_P(Fault, AFailedInsertKeepsTheNewRow) {
    const auto recordset = recipes();
    recordset->addNew();
    recordset->field("Name").setValue("D");
    plan_.arm(1, FaultPlan::Kind::insert);
    EXPECT_EQ(errorNumber([&] { recordset->moveFirst(); }), ado::dbErrUnspecified);
    EXPECT_EQ(recordset->editMode(), ado::adEditAdd);
    EXPECT_EQ(recordset->field("Name").value(), Variant("D"));
    EXPECT_EQ(recordset->recordCount(), 3);
    recordset->update();
    EXPECT_EQ(names(), "A,B,C,D");
}

TEST_P(Fault, AFailedDeleteLeavesTheRowCurrent) {
    const auto recordset = recipes();
    recordset->moveNext();
    plan_.arm(1, FaultPlan::Kind::remove);
    EXPECT_EQ(errorNumber([&] { recordset->remove(); }), ado::dbErrUnspecified);
    EXPECT_EQ(recordset->editMode(), ado::adEditNone);
    EXPECT_EQ(recordset->field("Name").value(), Variant("B"));
    EXPECT_EQ(recordset->recordCount(), 3);
    EXPECT_EQ(names(), "A,B,C");
}

TEST_P(Fault, AFailedCommitCanBeRolledBack) {
    connection_->beginTrans();
    addRecipes({"D"});
    plan_.arm(1, FaultPlan::Kind::commit);
    EXPECT_EQ(errorNumber([&] { connection_->commitTrans(); }), ado::dbErrUnspecified);
    EXPECT_TRUE(connection_->inTransaction());
    connection_->rollbackTrans();
    EXPECT_EQ(names(), "A,B,C");
}

TEST_P(Fault, AFailedBeginLeavesNoTransactionOpen) {
    plan_.arm(1, FaultPlan::Kind::begin);
    EXPECT_EQ(errorNumber([&] { connection_->beginTrans(); }), ado::dbErrUnspecified);
    EXPECT_FALSE(connection_->inTransaction());
    addRecipes({"D"});
    EXPECT_EQ(names(), "A,B,C,D");
}

TEST_P(Fault, AFailedCloseInATransactionStillCloses) {
    connection_->beginTrans();
    addRecipes({"D"});
    plan_.arm(1, FaultPlan::Kind::rollback);
    connection_->close();
    EXPECT_EQ(connection_->state(), ado::adStateClosed);
    ASSERT_EQ(connection_->errors().size(), 1U);
    EXPECT_EQ(names(), "A,B,C");
}

// Members are replaced in one transaction; wherever it fails, the project keeps all old members or has all new ones.
TEST_P(Fault, AReplacementFailsAsAWholeWhereverItFails) {
    const auto replace = [&] {
        connection_->beginTrans();
        try {
            Recordset command;
            command.open("DELETE * FROM TrcpRecipeMember WHERE ParentID = 1", connection_);
            const auto table = members();
            for (int i = 0; i < 5; ++i) {
                table->addNew(Values{{"ParentID", 1}, {"VarRecipe", "N" + std::to_string(i)}, {"ChildID", 0}});
            }
            connection_->commitTrans();
        } catch (const automation::Error&) {
            plan_.disarm();
            connection_->rollbackTrans();
            throw;
        }
    };
    int failures = 0;
    for (int nth = 1;; ++nth) {
        plan_.arm(nth);
        const bool failed = errorNumber(replace) != 0;
        if (!plan_.fired()) break;
        EXPECT_TRUE(failed) << nth;
        EXPECT_EQ(memberCount(), 300) << nth;
        ++failures;
    }
    EXPECT_EQ(failures, 9);  // begin, delete, open, five inserts, commit
    EXPECT_EQ(memberCount(), 5);
}

INSTANTIATE_TEST_SUITE_P(Provider, Fault, testing::ValuesIn(storeKinds()),
                         [](const auto& kind) { return kind.param.name; });

}  // namespace

}  // namespace hx::contract
