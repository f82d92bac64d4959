// SPDX-License-Identifier: MIT

// Connection, Recordset and Field as a client without type information uses them.
#include "store.h"

namespace hx::contract {

namespace {

class LateBound : public ProviderContract {
  protected:
    static Variant call(automation::Dispatch& object, std::string_view name, std::vector<Variant> args = {}) {
        return object.get(name, args);
    }
};

TEST_P(LateBound, WorksOnAProjectByNameAlone) {
    auto connection = std::make_shared<ado::Connection>(store_->provider());
    EXPECT_EQ(call(*connection, "State"), Variant(0));
    call(*connection, "Open", {connectionString(), "", "", -1});
    EXPECT_EQ(call(*connection, "state"), Variant(1));
    auto recordset = std::make_shared<Recordset>();
    call(*recordset, "Open", {"TrcpRecipe", connection->share(), 1, 3, 2});
    call(*recordset, "AddNew", {"Name", "Cola"});
    call(*recordset, "AddNew");
    const Variant fieldName[] = {"Name"};
    call(*recordset, "Fields", {"Name"}).asObject()->set("Value", "Bier");
    EXPECT_EQ(call(*recordset, "EditMode"), Variant(2));
    call(*recordset, "Update");
    EXPECT_EQ(call(*recordset, "RecordCount"), Variant(2));
    call(*recordset, "MoveFirst");
    EXPECT_EQ(recordset->get("Fields", fieldName).asObject()->get("Value"), Variant("Cola"));
    call(*recordset, "Find", {"Name='bier'"});
    EXPECT_EQ(call(*recordset, "AbsolutePosition"), Variant(2));
    const Variant mark = call(*recordset, "Bookmark");
    const auto copy = call(*recordset, "Clone").asObject();
    copy->set("Bookmark", mark);
    EXPECT_EQ(call(*call(*copy, "Fields", {1}).asObject(), "Value"), Variant("Bier"));
    recordset->set("Filter", "ID = 2");
    call(*recordset, "Delete");
    call(*recordset, "MoveNext");
    EXPECT_EQ(call(*recordset, "EOF"), Variant(true));
    call(*recordset, "Close");
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "Cola");
}

TEST_P(LateBound, FieldsDescribeThemselves) {
    const auto recordset = recipes();
    const auto field = call(*recordset, "Fields", {"standardvalue"}).asObject();
    EXPECT_EQ(call(*field, "Name"), Variant("StandardValue"));
    EXPECT_EQ(call(*field, "Type"), Variant(5));
    EXPECT_EQ(call(*field, "DefinedSize"), Variant(8));
    EXPECT_EQ(errorNumber([&] { field->set("Name", "x"); }), automation::errMemberNotFound);
    EXPECT_EQ(errorNumber([&] { call(*recordset, "Fields", {"NoColumn"}); }), ado::adErrItemNotFound);
    EXPECT_EQ(errorNumber([&] { call(*recordset, "Fields", {-1}); }), ado::adErrItemNotFound);
}

TEST_P(LateBound, AFieldKeepsItsRecordsetAlive) {
    addRecipes({"A"});
    automation::ObjectRef field;
    {
        const auto recordset = recipes();
        field = call(*recordset, "Fields", {"Name"}).asObject();
    }
    EXPECT_EQ(call(*field, "Value"), Variant("A"));
}

TEST_P(LateBound, TheErrorListHoldsWhatTheProviderSaid) {
    addRecipes({"A"});
    EXPECT_EQ(errorNumber([&] { addRecipes({"a"}); }), ado::dbErrDuplicate);
    EXPECT_EQ(call(*connection_, "ErrorCount"), Variant(1));
    const auto error = call(*connection_, "Errors", {0}).asObject();
    EXPECT_EQ(call(*error, "Number"), Variant(ado::dbErrDuplicate));
    EXPECT_EQ(call(*error, "Description"), Variant(connection_->errors()[0].description()));
    EXPECT_EQ(errorNumber([&] { call(*connection_, "Errors", {1}); }), automation::errBadIndex);
}

TEST_P(LateBound, TransactionsAreReachedByName) {
    call(*connection_, "BeginTrans");
    addRecipes({"A"});
    call(*connection_, "RollbackTrans");
    call(*connection_, "BeginTrans");
    addRecipes({"B"});
    call(*connection_, "CommitTrans");
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "B");
}

TEST_P(LateBound, WrongNumbersOfArgumentsAreRefused) {
    const auto recordset = recipes();
    EXPECT_EQ(errorNumber([&] { call(*recordset, "Find"); }), automation::errBadParamCount);
    EXPECT_EQ(errorNumber([&] { call(*recordset, "Find", {"ID=1", 0, 1, 2}); }), automation::errBadParamCount);
    EXPECT_EQ(errorNumber([&] { call(*recordset, "AddNew", {"Name"}); }), automation::errBadParamCount);
    EXPECT_EQ(errorNumber([&] { call(*recordset, "MoveFirst", {1}); }), automation::errBadParamCount);
    EXPECT_EQ(errorNumber([&] { call(*connection_, "Open"); }), automation::errBadParamCount);
}

INSTANTIATE_TEST_SUITE_P(Provider, LateBound, testing::ValuesIn(storeKinds()),
                         [](const auto& kind) { return kind.param.name; });

}  // namespace

}  // namespace hx::contract
