// SPDX-License-Identifier: MIT

// Deleting rows, one by one and together.
#include <array>

#include "store.h"

namespace hx::contract {

namespace {

class Deletion : public ProviderContract {
  protected:
    Deletion() { addRecipes({"A", "B", "C"}); }
};

TEST_P(Deletion, ADeletedRowStaysCurrentUntilAMove) {
    const auto recordset = recipes();
    recordset->setAbsolutePosition(2);
    recordset->remove();
    EXPECT_EQ(recordset->editMode(), ado::adEditDelete);
    EXPECT_EQ(recordset->recordCount(), 2);
    EXPECT_EQ(errorNumber([&] { (void)recordset->field("Name").value(); }), ado::dbErrDeletedRow);
    EXPECT_EQ(errorNumber([&] { recordset->remove(); }), ado::dbErrDeletedRow);
    EXPECT_TRUE(recordset->bookmark().isNull());
    recordset->update();
    recordset->moveNext();
    EXPECT_EQ(recordset->field("Name").value(), Variant("C"));
    EXPECT_EQ(recordset->editMode(), ado::adEditNone);
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "A,C");
}

TEST_P(Deletion, FromADeletedRowOneCanMoveBack) {
    const auto recordset = recipes();
    recordset->setAbsolutePosition(2);
    recordset->remove();
    recordset->movePrevious();
    EXPECT_EQ(recordset->field("Name").value(), Variant("A"));
    recordset->remove();
    recordset->movePrevious();
    EXPECT_TRUE(recordset->bof());
}

TEST_P(Deletion, DeletingTheLastRowLeadsToEof) {
    const auto recordset = recipes();
    recordset->moveLast();
    recordset->remove();
    recordset->moveNext();
    EXPECT_TRUE(recordset->eof());
}

TEST_P(Deletion, AFilteredRecordsetIsEmptiedRowByRow) {
    addVariables(1, 300);
    addVariables(2, 5);
    const auto recordset = members();
    recordset->setFilter("ParentID = 1");
    while (recordset->recordCount() > 0) {
        recordset->moveFirst();
        recordset->remove();
        recordset->update();
    }
    EXPECT_TRUE(recordset->eof());
    EXPECT_EQ(stored("TrcpRecipeMember", "ParentID"), "2,2,2,2,2");
}

TEST_P(Deletion, ACloneNoticesDeletedRows) {
    const auto recordset = recipes();
    const auto copy = recordset->clone();
    copy->moveLast();
    EXPECT_EQ(copy->absolutePosition(), 3);
    recordset->setAbsolutePosition(2);
    recordset->remove();
    EXPECT_EQ(copy->recordCount(), 2);
    EXPECT_EQ(copy->absolutePosition(), 2);
    EXPECT_EQ(copy->field("Name").value(), Variant("C"));
    copy->remove();
    EXPECT_EQ(column(*recordset, "Name"), "A");
}

TEST_P(Deletion, ACloneOnTheDeletedRowStandsOnADeletedRow) {
    const auto recordset = recipes();
    const auto copy = recordset->clone();
    EXPECT_EQ(copy->field("Name").value(), Variant("A"));
    recordset->remove();
    EXPECT_EQ(errorNumber([&] { (void)copy->field("Name").value(); }), ado::dbErrDeletedRow);
    copy->moveNext();
    EXPECT_EQ(copy->field("Name").value(), Variant("B"));
}

TEST_P(Deletion, RowsThatSomebodyElseDeletedAreSkipped) {
    const auto recordset = recipes();
    EXPECT_EQ(recordset->recordCount(), 3);
    Recordset other;
    other.open("DELETE * FROM TrcpRecipe WHERE ID = 2", connect());
    recordset->moveNext();
    EXPECT_EQ(recordset->field("Name").value(), Variant("C"));
    recordset->movePrevious();
    EXPECT_EQ(recordset->field("Name").value(), Variant("A"));
    EXPECT_TRUE(recordset->valueAt(1, 1).isNull());
    other.open("DELETE * FROM TrcpRecipe WHERE ID = 3", connect());
    recordset->resync();
    recordset->moveLast();
    EXPECT_EQ(recordset->field("Name").value(), Variant("A"));
}

TEST_P(Deletion, ChangingARowThatSomebodyElseDeletedIsAnError) {
    const auto recordset = recipes();
    EXPECT_EQ(recordset->field("Name").value(), Variant("A"));
    Recordset other;
    other.open("DELETE * FROM TrcpRecipe WHERE ID = 1", connect());
    recordset->field("Comment").setValue("x");
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrDeletedRow);
    EXPECT_EQ(recordset->editMode(), ado::adEditInProgress);
    recordset->cancelUpdate();
    EXPECT_EQ(errorNumber([&] { recordset->remove(); }), ado::dbErrDeletedRow);
    recordset->moveNext();
    EXPECT_EQ(recordset->field("Name").value(), Variant("B"));
}

TEST_P(Deletion, RowsAreDeletedTogetherWhereverTheyStand) {
    const auto recordset = open("SELECT * FROM TrcpRecipe ORDER BY Name DESC");
    const auto clone = recordset->clone();
    clone->moveLast();
    const std::vector<ado::Key> keys = {recordset->bookmarkAt(2).key(), recordset->bookmarkAt(0).key(), 4711};
    recordset->removeRows(keys);
    EXPECT_EQ(column(*recordset, "Name"), "B");
    EXPECT_EQ(clone->editMode(), ado::adEditDelete);
    EXPECT_EQ(clone->recordCount(), 1);
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "B");
}

TEST_P(Deletion, RowsOfOthersAreNotDeletedTogether) {
    const ado::Key other = recipes()->bookmarkAt(1).key();
    const auto recordset = open("SELECT * FROM TrcpRecipe WHERE Name = 'A'");
    recordset->removeRows(std::array{other});
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "A,B,C");
}

TEST_P(Deletion, ARefusedDeletionOfSeveralRowsLeavesThoseBeforeItOut) {
    const auto recordset = recipes();
    const std::vector<ado::Key> keys = {recordset->bookmarkAt(0).key(), recordset->bookmarkAt(2).key()};
    recipes()->removeRows(std::array{keys[1]});
    EXPECT_EQ(errorNumber([&] { recordset->removeRows(keys); }), ado::dbErrDeletedRow);
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "B");
    EXPECT_EQ(recordset->indexOf(ado::Bookmark(keys[0])), -1);
}

// A store that cannot tell is never up to date.
INSTANTIATE_TEST_SUITE_P(Provider, Deletion, testing::ValuesIn(storeKinds()),
                         [](const auto& kind) { return kind.param.name; });

}  // namespace

}  // namespace hx::contract
