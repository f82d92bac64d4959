// SPDX-License-Identifier: MIT

// Somebody else changes or deletes the row that is being edited: it is told, and nothing of theirs is overwritten.
#include <cmath>
#include <limits>

#include "store.h"

namespace hx::contract {

namespace {

using automation::Null;

class Conflict : public ProviderContract {
  protected:
    Conflict() { addRecipes({"A", "B"}); }

    /// Another program stores a value in the first recipe.
    void theyStore(const std::string& name, const Variant& value) const {
        Recordset other;
        other.open("TrcpRecipe", connect());
        other.field(name).setValue(value);
        other.update();
    }
    void theyDelete() const {
        Recordset other;
        other.open("DELETE * FROM TrcpRecipe WHERE ID = 1", connect());
    }
    [[nodiscard]] Variant storedIn(const std::string& name) const {
        Recordset other;
        other.open("TrcpRecipe", connect());
        return other.field(name).value();
    }
    /// What an update of a column ends in that held `before` and that another program has given `theirs` meanwhile.
    std::int32_t updateAfter(const std::string& name, const Variant& before, const Variant& theirs,
                             const Variant& mine) {
        theyStore(name, before);
        const auto recordset = recipes();
        recordset->field(name).setValue(mine);
        theyStore(name, theirs);
        return errorNumber([&] { recordset->update(); });
    }
};

TEST_P(Conflict, AColumnThatAnotherHasChangedIsNotOverwritten) {
    const auto recordset = recipes();
    recordset->field("Comment").setValue("mine");
    theyStore("Comment", "theirs");
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrRowChanged);
    EXPECT_EQ(storedIn("Comment"), Variant("theirs"));
}

TEST_P(Conflict, TheErrorSaysWhatHappenedAndHasItsNumber) {
    const auto recordset = recipes();
    recordset->field("Comment").setValue("mine");
    theyStore("Comment", "theirs");
    const std::string description = descriptionOf([&] { recordset->update(); });
    EXPECT_NE(description.find("The row was changed by another"), std::string::npos) << description;
    ASSERT_EQ(connection_->errors().size(), 1U);
    EXPECT_EQ(connection_->errors()[0].number(), -2147217864);
}

TEST_P(Conflict, NothingOfARefusedUpdateIsStored) {
    const auto recordset = recipes();
    recordset->field("VarLoad").setValue("mine");
    recordset->field("Comment").setValue("mine");
    theyStore("Comment", "theirs");
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrRowChanged);
    EXPECT_EQ(storedIn("VarLoad"), Variant(""));
}

TEST_P(Conflict, TheEditWaitsAndTheOtherColumnsShowWhatIsStoredNow) {
    const auto recordset = recipes();
    EXPECT_EQ(recordset->field("VarLoad").value(), Variant(""));
    recordset->field("Comment").setValue("mine");
    theyStore("Comment", "theirs");
    theyStore("VarLoad", "theirs too");
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrRowChanged);
    EXPECT_EQ(recordset->editMode(), ado::adEditInProgress);
    EXPECT_EQ(recordset->field("Comment").value(), Variant("mine"));
    EXPECT_EQ(recordset->field("VarLoad").value(), Variant("theirs too"));
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrRowChanged) << "nobody has read the row again";
    recordset->cancelUpdate();
    EXPECT_EQ(recordset->field("Comment").value(), Variant("theirs"));
}

TEST_P(Conflict, AfterTheRowWasReadAgainItCanBeChanged) {
    const auto recordset = recipes();
    recordset->field("Comment").setValue("mine");
    theyStore("Comment", "theirs");
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrRowChanged);
    recordset->resync(ado::adAffectCurrent);
    recordset->field("Comment").setValue("mine");
    recordset->update();
    EXPECT_EQ(storedIn("Comment"), Variant("mine"));
}

TEST_P(Conflict, LeavingTheRowStaysOnIt) {
    const auto recordset = recipes();
    recordset->field("Comment").setValue("mine");
    theyStore("Comment", "theirs");
    EXPECT_EQ(errorNumber([&] { recordset->moveNext(); }), ado::dbErrRowChanged);
    EXPECT_EQ(recordset->absolutePosition(), 1);
    EXPECT_EQ(recordset->editMode(), ado::adEditInProgress);
}

TEST_P(Conflict, ChangesOfDifferentColumnsAreBothKept) {
    const auto recordset = recipes();
    recordset->field("Comment").setValue("mine");
    theyStore("VarLoad", "theirs");
    theyStore("StandardValue", 0.5);
    recordset->update();
    EXPECT_EQ(storedIn("Comment"), Variant("mine"));
    EXPECT_EQ(storedIn("VarLoad"), Variant("theirs"));
    EXPECT_EQ(recordset->field("StandardValue").value(), Variant(0.5));
}

TEST_P(Conflict, AColumnThatGetsBackWhatItHeldIsNotWritten) {
    const auto recordset = recipes();
    recordset->field("Comment").setValue("mine");
    recordset->field("Comment").setValue("");
    recordset->field("Enabled").setValue(std::int16_t{0});
    recordset->field("VarLoad").setValue("mine");
    theyStore("Comment", "theirs");
    theyStore("Enabled", true);
    recordset->update();
    EXPECT_EQ(recordset->editMode(), ado::adEditNone);
    EXPECT_EQ(storedIn("Comment"), Variant("theirs"));
    EXPECT_EQ(storedIn("Enabled"), Variant(true));
    EXPECT_EQ(storedIn("VarLoad"), Variant("mine"));
}

TEST_P(Conflict, AnEditWithoutAChangeWritesNothing) {
    const auto recordset = recipes();
    recordset->field("Comment").setValue("");
    theyStore("Comment", "theirs");
    recordset->update();
    EXPECT_EQ(storedIn("Comment"), Variant("theirs"));
}

TEST_P(Conflict, AnEditReadsTheRowAfreshAndKeepsWhatItHasRead) {
    const auto recordset = recipes();
    EXPECT_EQ(recordset->field("Comment").value(), Variant(""));
    theyStore("Comment", "first");
    recordset->edit();
    EXPECT_EQ(recordset->editMode(), ado::adEditInProgress);
    theyStore("Comment", "second");
    theyStore("VarLoad", "second");
    recordset->resync();
    recordset->edit();
    theyStore("Comment", "third");
    theyStore("VarLoad", "third");
    EXPECT_EQ(recordset->field("Comment").value(), Variant("second"));
    EXPECT_EQ(recordset->field("VarLoad").value(), Variant("second"));
    EXPECT_EQ(recordset->field("ID").value(), Variant(1));
    recordset->field("Comment").setValue("mine");
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrRowChanged);
    recordset->cancelUpdate();
    EXPECT_EQ(recordset->field("Comment").value(), Variant("third"));
}

TEST_P(Conflict, AnEditWithoutAChangeEndsWithTheRow) {
    const auto recordset = recipes();
    recordset->edit();
    theyStore("Comment", "theirs");
    recordset->moveNext();
    EXPECT_EQ(recordset->editMode(), ado::adEditNone);
    EXPECT_EQ(storedIn("Comment"), Variant("theirs"));
}

TEST_P(Conflict, AnEditOfARowThatIsGoneDoesNotBegin) {
    const auto recordset = recipes();
    EXPECT_EQ(recordset->field("Name").value(), Variant("A"));
    theyDelete();
    EXPECT_EQ(errorNumber([&] { recordset->edit(); }), ado::dbErrDeletedRow);
    EXPECT_EQ(recordset->editMode(), ado::adEditNone);
    recordset->moveLast();
    recordset->moveNext();
    EXPECT_EQ(errorNumber([&] { recordset->edit(); }), ado::adErrNoCurrentRecord);
}

TEST_P(Conflict, AFieldTellsWhatItHeldAndWhatIsStoredNow) {
    const auto recordset = recipes();
    ado::Field& comment = recordset->field("Comment");
    comment.setValue("mine");
    theyStore("Comment", "theirs");
    EXPECT_EQ(comment.value(), Variant("mine"));
    EXPECT_EQ(comment.originalValue(), Variant(""));
    EXPECT_EQ(comment.underlyingValue(), Variant("theirs"));
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrRowChanged);
    EXPECT_EQ(comment.originalValue(), Variant(""));
    recordset->cancelUpdate();
    EXPECT_EQ(comment.originalValue(), Variant("theirs"));
    recordset->addNew();
    EXPECT_TRUE(comment.originalValue().isNull());
    EXPECT_TRUE(comment.underlyingValue().isNull());
    recordset->cancelUpdate();
    theyDelete();
    EXPECT_EQ(errorNumber([&] { (void)comment.underlyingValue(); }), ado::dbErrDeletedRow);
}

TEST_P(Conflict, ADeletedRowIsDeletedAndNotChanged) {
    const auto recordset = recipes();
    recordset->field("Comment").setValue("mine");
    theyStore("Comment", "theirs");
    theyDelete();
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrDeletedRow);
    EXPECT_EQ(recordset->editMode(), ado::adEditInProgress);
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "B");
}

TEST_P(Conflict, OnesOwnChangesAreNone) {
    const auto recordset = recipes();
    for (const char* value : {"1", "2", ""}) {
        recordset->field("Comment").setValue(value);
        recordset->update();
        EXPECT_EQ(storedIn("Comment"), Variant(value));
    }
    const auto second = recipes();
    second->field("Comment").setValue("3");
    second->update();
    recordset->field("Comment").setValue("4");
    recordset->update();
    EXPECT_EQ(storedIn("Comment"), Variant("4"));
}

TEST_P(Conflict, AnotherRecordsetOfTheConnectionCountsAsAnother) {
    const auto recordset = recipes();
    const auto second = recipes();
    recordset->field("Comment").setValue("mine");
    second->field("Comment").setValue("theirs");
    second->update();
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrRowChanged);
}

TEST_P(Conflict, InATransactionTheRestOfItCanBeCommitted) {
    const auto recordset = recipes();
    recordset->field("Comment").setValue("mine");
    theyStore("Comment", "theirs");
    connection_->beginTrans();
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrRowChanged);
    recordset->cancelUpdate();
    recordset->field("VarLoad").setValue("mine");
    recordset->update();
    connection_->commitTrans();
    EXPECT_EQ(storedIn("Comment"), Variant("theirs"));
    EXPECT_EQ(storedIn("VarLoad"), Variant("mine"));
}

TEST_P(Conflict, AfterARefusalNobodyIsLockedOut) {
    const auto recordset = recipes();
    recordset->field("Comment").setValue("mine");
    theyStore("Comment", "theirs");
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrRowChanged);
    EXPECT_FALSE(connection_->inTransaction());
    theyStore("Comment", "theirs again");
    EXPECT_EQ(storedIn("Comment"), Variant("theirs again"));
}

TEST_P(Conflict, ADuplicateNamesItsValueAsEver) {
    const auto recordset = recipes();
    recordset->field("Name").setValue("b");
    const std::string description = descriptionOf([&] { recordset->update(); });
    EXPECT_NE(description.find("\"b\""), std::string::npos) << description;
    theyStore("Name", "C");
    EXPECT_EQ(storedIn("Name"), Variant("C"));
}

TEST_P(Conflict, AMissingValueIsNotAnEmptyOne) {
    EXPECT_EQ(updateAfter("Comment", Null{}, "", "mine"), ado::dbErrRowChanged);
    EXPECT_EQ(updateAfter("Comment", "", Null{}, "mine"), ado::dbErrRowChanged);
    EXPECT_EQ(updateAfter("StandardValue", Null{}, 0.0, 1.0), ado::dbErrRowChanged);
    EXPECT_EQ(updateAfter("StandardValue", 0.0, Null{}, 1.0), ado::dbErrRowChanged);
    EXPECT_EQ(updateAfter("Comment", Null{}, Null{}, "mine"), 0);
    EXPECT_EQ(updateAfter("Comment", "x", "x", Null{}), 0);
    EXPECT_TRUE(storedIn("Comment").isNull());
}

TEST_P(Conflict, DoublesAreComparedToTheLastBit) {
    constexpr double third = 1.0 / 3;
    const double next = std::nextafter(third, 1);
    constexpr double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(updateAfter("StandardValue", third, next, 1.0), ado::dbErrRowChanged);
    EXPECT_EQ(updateAfter("StandardValue", infinite, -infinite, 1.0), ado::dbErrRowChanged);
    EXPECT_EQ(updateAfter("StandardValue", infinite, std::numeric_limits<double>::max(), 1.0), ado::dbErrRowChanged);
    for (const double same : {third, infinite, -infinite, std::numeric_limits<double>::denorm_min()}) {
        EXPECT_EQ(updateAfter("StandardValue", same, same, 1.0), 0) << same;
        EXPECT_EQ(storedIn("StandardValue"), Variant(1.0));
        EXPECT_EQ(updateAfter("StandardValue", 1.0, 1.0, same), 0) << same;
        EXPECT_EQ(storedIn("StandardValue"), Variant(same));
    }
}

TEST_P(Conflict, WhatIsNotANumberCanBeChanged) {
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(updateAfter("StandardValue", notANumber, notANumber, 1.0), 0);
    EXPECT_EQ(storedIn("StandardValue"), Variant(1.0));
    EXPECT_EQ(updateAfter("StandardValue", notANumber, 2.0, 1.0), ado::dbErrRowChanged);
}

TEST_P(Conflict, TextsAreComparedByTheirBytes) {
    const std::string longText(1'000'000, 'x');
    EXPECT_EQ(updateAfter("FilePath", longText + "a", longText + "b", "mine"), ado::dbErrRowChanged);
    EXPECT_EQ(updateAfter("FilePath", longText, longText, "mine"), 0);
    EXPECT_EQ(storedIn("FilePath"), Variant("mine"));
    EXPECT_EQ(updateAfter("Comment", "Tank", "TANK", "mine"), ado::dbErrRowChanged);
    EXPECT_EQ(updateAfter("Comment", "Tank", "Tank ", "mine"), ado::dbErrRowChanged);
    EXPECT_EQ(updateAfter("Comment", "Größe", "Größe", "mine"), 0);
    EXPECT_EQ(updateAfter("Comment", "1", "1.0", "mine"), ado::dbErrRowChanged);
}

TEST_P(Conflict, NumbersAndYesAndNoAreCompared) {
    EXPECT_EQ(updateAfter("Options", 1, 2, 3), ado::dbErrRowChanged);
    EXPECT_EQ(updateAfter("Options", 3, 3, 0), 0);
    EXPECT_EQ(updateAfter("Enabled", false, true, false), 0) << "nothing is changed";
    EXPECT_EQ(updateAfter("Enabled", true, true, false), 0);
    EXPECT_EQ(storedIn("Enabled"), Variant(false));
}

INSTANTIATE_TEST_SUITE_P(Provider, Conflict, testing::ValuesIn(storeKinds()),
                         [](const auto& kind) { return kind.param.name; });

}  // namespace

}  // namespace hx::contract
