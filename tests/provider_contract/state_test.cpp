// SPDX-License-Identifier: MIT

// Opening and closing, and what may be done in which state.
#include "store.h"

namespace hx::contract {

namespace {

using namespace std::string_literals;

class State : public ProviderContract {};

TEST_P(State, AConnectionOpensAndCloses) {
    ado::Connection connection(store_->provider());
    EXPECT_EQ(connection.state(), ado::adStateClosed);
    connection.open(connectionString());
    EXPECT_EQ(connection.state(), ado::adStateOpen);
    EXPECT_EQ(connection.connectionString(), connectionString());
    connection.close();
    EXPECT_EQ(connection.state(), ado::adStateClosed);
}

TEST_P(State, OpeningAConnectionTwiceKeepsTheFirst) {
    EXPECT_EQ(errorNumber([&] { connection_->open("Data Source=elsewhere.hxs"); }), ado::adErrObjectOpen);
    EXPECT_EQ(connection_->state(), ado::adStateOpen);
    EXPECT_EQ(connection_->connectionString(), connectionString());
}

TEST_P(State, AMissingFileIsAnErrorAndIsNotCreated) {
    ado::Connection connection(store_->provider());
    const auto openMissing = [&] { connection.open("Data Source=/no/such/folder/Plant.hxs;Mode=Read|Write"); };
    EXPECT_EQ(errorNumber(openMissing), ado::dbErrUnspecified);
    EXPECT_EQ(descriptionOf(openMissing), "Could not find file '/no/such/folder/Plant.hxs'.");
    EXPECT_EQ(connection.state(), ado::adStateClosed);
    ASSERT_EQ(connection.errors().size(), 1U);
    EXPECT_EQ(connection.errors()[0].number(), ado::dbErrUnspecified);
}

TEST_P(State, AClosedConnectionRefusesEverythingElse) {
    connection_->close();
    EXPECT_EQ(errorNumber([&] { connection_->close(); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { connection_->beginTrans(); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { (void)recipes(); }), ado::adErrInvalidConnection);
}

TEST_P(State, ARecordsetIsClosedUntilItIsOpened) {
    Recordset recordset;
    EXPECT_EQ(recordset.state(), ado::adStateClosed);
    EXPECT_EQ(errorNumber([&] { recordset.moveFirst(); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { recordset.close(); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { (void)recordset.eof(); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { (void)recordset.recordCount(); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { (void)recordset.field("ID"); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { recordset.addNew(); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { recordset.update(); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { recordset.cancelUpdate(); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { recordset.remove(); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { recordset.requery(); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { recordset.resync(); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { recordset.setFilter("ID=1"); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { recordset.find("ID=1"); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { (void)recordset.clone(); }), ado::adErrObjectClosed);
}

TEST_P(State, ARecordsetNeedsAConnection) {
    Recordset recordset;
    recordset.setSource("TrcpRecipe");
    EXPECT_EQ(errorNumber([&] { recordset.open(); }), ado::adErrInvalidConnection);
}

TEST_P(State, APresetSourceSurvivesClosing) {
    Recordset recordset;
    recordset.setSource("TrcpRecipe");
    recordset.setActiveConnection(connection_);
    recordset.setCommandType(ado::adCmdTable);
    recordset.open();
    EXPECT_EQ(recordset.state(), ado::adStateOpen);
    EXPECT_EQ(errorNumber([&] { recordset.open(); }), ado::adErrObjectOpen);
    EXPECT_EQ(errorNumber([&] { recordset.setSource("TrcpRecipeMember"); }), ado::adErrObjectOpen);
    recordset.close();
    EXPECT_EQ(recordset.source(), "TrcpRecipe");
    recordset.open();
    EXPECT_EQ(recordset.field(0).name(), "ID");
}

TEST_P(State, OpeningWithASourceReplacesThePresetOne) {
    Recordset recordset;
    recordset.setSource("TrcpRecipe");
    recordset.setActiveConnection(connection_);
    recordset.open("SELECT * FROM TrcpRecipeMember WHERE ParentID = -1");
    EXPECT_EQ(recordset.source(), "SELECT * FROM TrcpRecipeMember WHERE ParentID = -1");
    EXPECT_EQ(recordset.recordCount(), 0);
    EXPECT_EQ(recordset.fieldCount(), 4U);
}

TEST_P(State, AnEmptyOrUnreadableSourceIsAnError) {
    EXPECT_EQ(errorNumber([&] { (void)open(""); }), ado::dbErrBadCommand);
    EXPECT_EQ(errorNumber([&] { (void)open("NoSuchTable"); }), ado::dbErrNoTable);
    EXPECT_EQ(errorNumber([&] { (void)open("SELECT * FROM NoSuchTable"); }), ado::dbErrNoTable);
    EXPECT_EQ(errorNumber([&] { (void)open("SELECT * FORM TrcpRecipe"); }), ado::dbErrBadCommand);
    EXPECT_EQ(errorNumber([&] { (void)open("SELECT * FROM TrcpRecipe WHERE NoColumn = 1"); }), ado::dbErrBadCommand);
    EXPECT_EQ(errorNumber([&] { (void)open(" ORDER BY ID"); }), ado::dbErrNoTable);
    ASSERT_EQ(connection_->errors().size(), 1U);
    EXPECT_EQ(connection_->errors()[0].number(), ado::dbErrNoTable);
}

TEST_P(State, ACommandWithoutRowsIsCarriedOutAndLeavesTheRecordsetClosed) {
    addVariables(1, 3);
    addVariables(2, 2);
    Recordset recordset;
    recordset.open("DELETE * FROM TrcpRecipeMember WHERE ParentID = 1", connection_);
    EXPECT_EQ(recordset.state(), ado::adStateClosed);
    EXPECT_EQ(stored("TrcpRecipeMember", "ParentID"), "2,2");
}

TEST_P(State, ClosingTheConnectionClosesItsRecordsets) {
    addRecipes({"A"});
    const auto recordset = recipes();
    const auto copy = recordset->clone();
    const auto field = recordset->fields("Name");
    recordset->field("Name").setValue("B");
    connection_->close();
    EXPECT_EQ(recordset->state(), ado::adStateClosed);
    EXPECT_EQ(copy->state(), ado::adStateClosed);
    EXPECT_EQ(errorNumber([&] { recordset->moveFirst(); }), ado::adErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { (void)field->get("Value"); }), ado::adErrObjectClosed);
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "A");
    connection_ = connect();
    recordset->setActiveConnection(connection_);
    recordset->open();
    EXPECT_EQ(recordset->field("Name").value(), Variant("A"));
}

TEST_P(State, ClosingWithAPendingEditIsRefusedAndKeepsTheEdit) {
    addRecipes({"A"});
    const auto recordset = recipes();
    recordset->field("Name").setValue("B");
    EXPECT_EQ(errorNumber([&] { recordset->close(); }), ado::adErrIllegalOperation);
    EXPECT_EQ(recordset->state(), ado::adStateOpen);
    EXPECT_EQ(recordset->editMode(), ado::adEditInProgress);
    EXPECT_EQ(recordset->field("Name").value(), Variant("B"));
    recordset->cancelUpdate();
    recordset->close();
    EXPECT_EQ(recordset->state(), ado::adStateClosed);
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "A");
}

TEST_P(State, ARecordsetOpenedForReadingRefusesWrites) {
    addRecipes({"A"});
    Recordset recordset;
    recordset.open("TrcpRecipe", connection_, ado::adOpenKeyset, ado::adLockReadOnly);
    EXPECT_EQ(errorNumber([&] { recordset.field("Name").setValue("B"); }), ado::adErrIllegalOperation);
    EXPECT_EQ(errorNumber([&] { recordset.addNew(); }), ado::adErrIllegalOperation);
    EXPECT_EQ(errorNumber([&] { recordset.remove(); }), ado::adErrIllegalOperation);
}

TEST_P(State, ATableOpensDirectly) {
    Recordset recordset;
    recordset.open("TrcpRecipeMember", connection_, ado::adOpenKeyset, ado::adLockOptimistic, ado::adCmdTableDirect);
    recordset.addNew();
    recordset.field("VarRecipe").setValue("Mischer1.Temperatur");
    recordset.field("ParentID").setValue(4);
    recordset.field("ChildID").setValue(0);
    recordset.update();
    EXPECT_EQ(stored("TrcpRecipeMember", "VarRecipe"), "Mischer1.Temperatur");
}

INSTANTIATE_TEST_SUITE_P(Provider, State, testing::ValuesIn(storeKinds()),
                         [](const auto& kind) { return kind.param.name; });

}  // namespace

}  // namespace hx::contract
