// SPDX-License-Identifier: MIT

// Several changes as one.
#include "store.h"

namespace hx::contract {

namespace {

class Transaction : public ProviderContract {
  protected:
    Transaction() { addRecipes({"A", "B", "C"}); }
};

TEST_P(Transaction, CommitMakesChangesLasting) {
    const auto recordset = recipes();
    connection_->beginTrans();
    EXPECT_TRUE(connection_->inTransaction());
    recordset->remove();
    addRecipes({"D"});
    connection_->commitTrans();
    EXPECT_FALSE(connection_->inTransaction());
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "B,C,D");
}

TEST_P(Transaction, RollbackTakesChangesBackAndOpenRecordsetsFollow) {
    const auto recordset = recipes();
    const auto other = recipes();
    other->moveLast();
    connection_->beginTrans();
    recordset->field("Name").setValue("X");
    recordset->update();
    recordset->moveNext();
    recordset->remove();
    recordset->addNew(Values{{"Name", "D"}});
    EXPECT_EQ(recordset->recordCount(), 3);
    connection_->rollbackTrans();
    EXPECT_EQ(errorNumber([&] { (void)recordset->field("Name").value(); }), ado::dbErrDeletedRow);
    EXPECT_EQ(column(*recordset, "Name"), "A,B,C");
    EXPECT_EQ(other->field("Name").value(), Variant("C"));
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "A,B,C");
}

TEST_P(Transaction, ARowWhoseDeletionWasTakenBackIsCurrentAgain) {
    const auto recordset = recipes();
    recordset->moveNext();
    connection_->beginTrans();
    recordset->remove();
    connection_->rollbackTrans();
    EXPECT_EQ(recordset->field("Name").value(), Variant("B"));
    EXPECT_EQ(recordset->absolutePosition(), 2);
}

TEST_P(Transaction, ACommandTakesPart) {
    addVariables(1, 4);
    connection_->beginTrans();
    Recordset command;
    command.open("DELETE * FROM TrcpRecipeMember WHERE ParentID = 1", connection_);
    EXPECT_EQ(members()->recordCount(), 0);
    connection_->rollbackTrans();
    EXPECT_EQ(stored("TrcpRecipeMember", "VarRecipe"), "V1,V2,V3,V4");
}

TEST_P(Transaction, ClosingRollsBack) {
    connection_->beginTrans();
    addRecipes({"D"});
    connection_->close();
    EXPECT_FALSE(connection_->inTransaction());
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "A,B,C");
}

TEST_P(Transaction, ARefusedChangeLeavesTheOthersInPlace) {
    connection_->beginTrans();
    addRecipes({"D"});
    EXPECT_EQ(errorNumber([&] { addRecipes({"d"}); }), ado::dbErrDuplicate);
    addRecipes({"E"});
    connection_->commitTrans();
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "A,B,C,D,E");
}

TEST_P(Transaction, TransactionsDoNotNestAndMustBeOpen) {
    EXPECT_EQ(errorNumber([&] { connection_->commitTrans(); }), ado::adErrIllegalOperation);
    EXPECT_EQ(errorNumber([&] { connection_->rollbackTrans(); }), ado::adErrIllegalOperation);
    connection_->beginTrans();
    EXPECT_EQ(errorNumber([&] { connection_->beginTrans(); }), ado::adErrInTransaction);
    connection_->rollbackTrans();
    EXPECT_FALSE(connection_->inTransaction());
}

INSTANTIATE_TEST_SUITE_P(Provider, Transaction, testing::ValuesIn(storeKinds()),
                         [](const auto& kind) { return kind.param.name; });

}  // namespace

}  // namespace hx::contract
