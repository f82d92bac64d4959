// SPDX-License-Identifier: MIT

// Many new rows in one call.
#include "ado/transaction.h"
#include "store.h"

namespace hx::contract {

namespace {

constexpr int manyRows = 300;  // more than a provider stores with one statement

/// The names V1, V2, ... of variables of one recipe, with another name in one place.
class Variables : public ado::RowSource {
  public:
    explicit Variables(int count, int special = 0, Variant specialName = {})
        : count_(count), special_(special), specialName_(std::move(specialName)) {}
    bool next(std::span<Variant> values) override {
        if (given_ == count_) return false;
        values[0] = ++given_ == special_ ? specialName_ : Variant("V" + std::to_string(given_));
        if (values.size() > 1) values[1] = 7;
        return true;
    }

  private:
    int count_, special_;
    Variant specialName_;
    int given_ = 0;
};

class ManyRows : public ProviderContract {
  protected:
    static void add(Recordset& recordset, ado::RowSource& rows, const std::vector<std::string>& fields) {
        recordset.addNew(fields, rows);
    }
    static std::string names(int count) {
        std::string all;
        for (int i = 1; i <= count; ++i) all += (i == 1 ? "V" : ",V") + std::to_string(i);
        return all;
    }
};

TEST_P(ManyRows, AreStoredInTheirOrder) {
    for (const int count : {1, 63, 64, 65, manyRows}) {
        Recordset command;
        command.open("DELETE * FROM TrcpRecipeMember", connection_);
        Variables rows(count);
        add(*members(), rows, {"VarRecipe", "ParentID"});
        EXPECT_EQ(stored("TrcpRecipeMember", "VarRecipe"), names(count)) << count;
    }
    EXPECT_EQ(open("SELECT * FROM TrcpRecipeMember WHERE ParentID = 7")->recordCount(), manyRows);
}

TEST_P(ManyRows, GetTheTablesDefaultsWhereTheyHaveNoValue) {
    Variables rows(2);
    add(*members(), rows, {"VarRecipe"});
    EXPECT_EQ(stored("TrcpRecipeMember", "ParentID"), "0,0");
    EXPECT_EQ(stored("TrcpRecipeMember", "ChildID"), "0,0");
}

TEST_P(ManyRows, AreConvertedToTheColumnsTypes) {
    Variables rows(2, 2, 12.5);
    add(*members(), rows, {"VarRecipe", "ParentID"});
    EXPECT_EQ(stored("TrcpRecipeMember", "VarRecipe"), "V1,12.5");
}

TEST_P(ManyRows, AreSeenByTheRecordsetsOnTheConnection) {
    addVariables(8, 2);
    const auto storing = members();
    const auto copy = storing->clone();
    EXPECT_EQ(storing->recordCount(), 2);
    storing->moveLast();
    Variables rows(manyRows);
    add(*storing, rows, {"VarRecipe", "ParentID"});
    EXPECT_EQ(storing->recordCount(), manyRows + 2);
    EXPECT_EQ(storing->absolutePosition(), 1);
    EXPECT_EQ(storing->editMode(), ado::adEditNone);
    EXPECT_EQ(copy->recordCount(), manyRows + 2);
    copy->moveLast();
    EXPECT_EQ(copy->field("VarRecipe").value(), Variant("V" + std::to_string(manyRows)));
}

TEST_P(ManyRows, WriteAPendingEditFirst) {
    addVariables(7, 1);
    const auto recordset = members();
    recordset->field("VarRecipe").setValue("Edited");
    Variables rows(1);
    add(*recordset, rows, {"VarRecipe"});
    EXPECT_EQ(stored("TrcpRecipeMember", "VarRecipe"), "Edited,V1");
}

TEST_P(ManyRows, ThatAreNoneStoreNothing) {
    Variables rows(0);
    add(*members(), rows, {"VarRecipe", "ParentID"});
    EXPECT_EQ(members()->recordCount(), 0);
}

TEST_P(ManyRows, OfAnUnknownColumnStoreNothing) {
    Variables rows(3);
    EXPECT_EQ(errorNumber([&] { add(*members(), rows, {"VarRecipe", "NoColumn"}); }), ado::adErrItemNotFound);
    EXPECT_EQ(members()->recordCount(), 0);
}

TEST_P(ManyRows, NeedARecordsetThatMayBeWritten) {
    Recordset recordset;
    Variables rows(3);
    EXPECT_EQ(errorNumber([&] { add(recordset, rows, {"VarRecipe"}); }), ado::adErrObjectClosed);
    recordset.open("TrcpRecipeMember", connection_, ado::adOpenKeyset, ado::adLockReadOnly);
    EXPECT_EQ(errorNumber([&] { add(recordset, rows, {"VarRecipe"}); }), ado::adErrIllegalOperation);
}

TEST_P(ManyRows, OfWhichOneIsRefusedAreTakenBackWithTheTransaction) {
    addRecipes({"A", "B"});
    const auto recordset = recipes();
    std::string refusal;
    {
        const ado::Transaction transaction(*connection_);
        Variables rows(manyRows, 200, "v3");
        refusal = descriptionOf([&] { add(*recordset, rows, {"Name"}); });
    }
    EXPECT_NE(refusal.find("\"v3\""), std::string::npos) << refusal;
    EXPECT_FALSE(connection_->inTransaction());
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "A,B");
    EXPECT_EQ(recordset->recordCount(), 2);
}

TEST_P(ManyRows, OfWhichOneCannotBeConvertedAreTakenBackWithTheTransaction) {
    {
        const ado::Transaction transaction(*connection_);
        Variables rows(manyRows, 200, std::string(300, 'x'));
        EXPECT_EQ(errorNumber([&] { add(*members(), rows, {"VarRecipe"}); }), ado::dbErrCannotConvert);
    }
    EXPECT_EQ(members()->recordCount(), 0);
}

TEST_P(ManyRows, AreCountedAfterAnErrorWithoutATransaction) {
    addRecipes({"V150"});
    const auto recordset = recipes();
    EXPECT_EQ(recordset->recordCount(), 1);
    Variables rows(manyRows);
    EXPECT_EQ(errorNumber([&] { add(*recordset, rows, {"Name"}); }), ado::dbErrDuplicate);
    const std::string now = stored("TrcpRecipe", "Name");
    EXPECT_EQ(column(*recordset, "Name"), now);
}

TEST_P(ManyRows, ATransactionThatIsCommittedLasts) {
    {
        ado::Transaction transaction(*connection_);
        Variables rows(3);
        add(*members(), rows, {"VarRecipe"});
        transaction.commit();
        EXPECT_FALSE(connection_->inTransaction());
    }
    EXPECT_EQ(stored("TrcpRecipeMember", "VarRecipe"), "V1,V2,V3");
}

TEST_P(ManyRows, ATransactionThatEndsWithItsConnectionIsTakenBack) {
    const auto other = connect();
    {
        const ado::Transaction transaction(*other);
        Recordset recordset;
        recordset.open("TrcpRecipeMember", other);
        Variables rows(3);
        add(recordset, rows, {"VarRecipe"});
        other->close();
    }
    EXPECT_EQ(members()->recordCount(), 0);
}

INSTANTIATE_TEST_SUITE_P(Provider, ManyRows, testing::ValuesIn(storeKinds()),
                         [](const auto& kind) { return kind.param.name; });

}  // namespace

}  // namespace hx::contract
