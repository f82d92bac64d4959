// SPDX-License-Identifier: MIT

// Changing and adding rows, and reading them again.
#include <array>

#include "store.h"

namespace hx::contract {

namespace {

class Edit : public ProviderContract {
  protected:
    Edit() { addRecipes({"A", "B", "C"}); }
};

TEST_P(Edit, ChangesWaitForUpdate) {
    const auto recordset = recipes();
    EXPECT_EQ(recordset->editMode(), ado::adEditNone);
    recordset->field("Comment").setValue("x");
    EXPECT_EQ(recordset->editMode(), ado::adEditInProgress);
    EXPECT_EQ(recordset->field("Comment").value(), Variant("x"));
    EXPECT_EQ(recordset->valueAt(0, 7), Variant(""));
    EXPECT_EQ(stored("TrcpRecipe", "Comment"), ",,");
    recordset->update();
    EXPECT_EQ(recordset->editMode(), ado::adEditNone);
    EXPECT_EQ(recordset->field("Comment").value(), Variant("x"));
    EXPECT_EQ(stored("TrcpRecipe", "Comment"), "x,,");
}

TEST_P(Edit, UpdateWithoutAnEditDoesNothing) {
    const auto recordset = recipes();
    recordset->update();
    recordset->cancelUpdate();
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "A,B,C");
}

TEST_P(Edit, CancelUpdateDropsTheEdit) {
    const auto recordset = recipes();
    recordset->field("Comment").setValue("x");
    recordset->cancelUpdate();
    EXPECT_EQ(recordset->editMode(), ado::adEditNone);
    EXPECT_EQ(recordset->field("Comment").value(), Variant(""));
}

TEST_P(Edit, UpdateWritesOnlyTheAssignedColumns) {
    const auto mine = recipes();
    mine->field("Comment").setValue("mine");
    const auto other = std::make_shared<Recordset>();
    other->open("TrcpRecipe", connect());
    other->field("VarLoad").setValue("theirs");
    other->update();
    mine->update();
    EXPECT_EQ(stored("SELECT * FROM TrcpRecipe WHERE ID=1", "Comment"), "mine");
    EXPECT_EQ(stored("SELECT * FROM TrcpRecipe WHERE ID=1", "VarLoad"), "theirs");
}

TEST_P(Edit, LeavingAnEditedRowWritesIt) {
    const auto recordset = recipes();
    recordset->field("Comment").setValue("1");
    recordset->moveNext();
    recordset->field("Comment").setValue("2");
    recordset->find("ID=3");
    recordset->field("Comment").setValue("3");
    recordset->requery();
    EXPECT_EQ(recordset->editMode(), ado::adEditNone);
    EXPECT_EQ(stored("TrcpRecipe", "Comment"), "1,2,3");
}

TEST_P(Edit, AMoveStaysOnTheRowWhenItCannotBeWritten) {
    const auto recordset = recipes();
    recordset->field("Name").setValue("b");
    EXPECT_EQ(errorNumber([&] { recordset->moveNext(); }), ado::dbErrDuplicate);
    EXPECT_EQ(recordset->absolutePosition(), 1);
    EXPECT_EQ(recordset->editMode(), ado::adEditInProgress);
    EXPECT_EQ(recordset->field("Name").value(), Variant("b"));
    recordset->field("Name").setValue("d");
    recordset->moveNext();
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "d,B,C");
}

TEST_P(Edit, MovingACloneLeavesTheEditAlone) {
    const auto recordset = recipes();
    const auto copy = recordset->clone();
    recordset->field("Comment").setValue("x");
    copy->moveLast();
    EXPECT_EQ(recordset->editMode(), ado::adEditInProgress);
    EXPECT_EQ(copy->editMode(), ado::adEditNone);
    recordset->update();
    copy->moveFirst();
    EXPECT_EQ(copy->field("Comment").value(), Variant("x"));
}

TEST_P(Edit, AddNewFillsARowThatUpdateStores) {
    const auto recordset = recipes();
    recordset->addNew();
    EXPECT_EQ(recordset->editMode(), ado::adEditAdd);
    EXPECT_TRUE(recordset->field("Name").value().isNull());
    EXPECT_TRUE(recordset->field("ID").value().isNull());
    EXPECT_TRUE(recordset->bookmark().isNull());
    EXPECT_EQ(recordset->absolutePosition(), -1);
    recordset->field("Name").setValue("D");
    EXPECT_EQ(recordset->recordCount(), 3);
    recordset->update();
    EXPECT_EQ(recordset->recordCount(), 4);
    EXPECT_EQ(recordset->absolutePosition(), 4);
    EXPECT_EQ(recordset->field("ID").value(), Variant(4));
    EXPECT_EQ(recordset->field("VarLoad").value(), Variant(""));
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "A,B,C,D");
}

TEST_P(Edit, CancellingANewRowReturnsToTheRowBefore) {
    const auto recordset = recipes();
    recordset->setAbsolutePosition(2);
    recordset->addNew();
    recordset->field("Name").setValue("D");
    recordset->cancelUpdate();
    EXPECT_EQ(recordset->editMode(), ado::adEditNone);
    EXPECT_EQ(recordset->field("Name").value(), Variant("B"));
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "A,B,C");
}

TEST_P(Edit, ANewRowIsStoredWhenItIsLeft) {
    const auto recordset = recipes();
    recordset->addNew();
    recordset->field("Name").setValue("D");
    recordset->addNew();
    recordset->field("Name").setValue("E");
    recordset->moveFirst();
    EXPECT_EQ(recordset->field("Name").value(), Variant("A"));
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "A,B,C,D,E");
}

TEST_P(Edit, AddNewWithValuesStoresAtOnce) {
    const auto recordset = members();
    recordset->addNew(Values{{"ParentID", 1}, {"VarRecipe", "CIP.Datei"}, {"ChildID", 2}});
    EXPECT_EQ(recordset->editMode(), ado::adEditNone);
    EXPECT_EQ(recordset->field("VarRecipe").value(), Variant("CIP.Datei"));
    EXPECT_EQ(recordset->recordCount(), 1);
    recordset->close();
    EXPECT_EQ(stored("TrcpRecipeMember", "ChildID"), "2");
}

TEST_P(Edit, ARecipeHasAVariableOnce) {
    const auto recordset = members();
    const auto add = [&](std::int32_t parent, const char* variable, std::int32_t child = 0) {
        recordset->addNew(Values{{"ParentID", parent}, {"VarRecipe", variable}, {"ChildID", child}});
    };
    add(1, "Tank.Level");
    EXPECT_EQ(errorNumber([&] { add(1, "TANK.Level"); }), ado::dbErrDuplicate);
    recordset->cancelUpdate();
    EXPECT_EQ(stored("TrcpRecipeMember", "VarRecipe"), "Tank.Level");
    add(2, "Tank.Level");
    add(1, "Tank.Temp");
    recordset->field("VarRecipe").setValue("tank.level");
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrDuplicate);
    recordset->cancelUpdate();
    EXPECT_EQ(recordset->field("VarRecipe").value(), Variant("Tank.Temp"));
}

TEST_P(Edit, EmptyVariablesMayRepeatAndSubRecipesMayShareTheVariableOfTheirFileName) {
    const auto recordset = members();
    for (int i = 0; i < 2; ++i) {
        recordset->addNew(Values{{"ParentID", 1}, {"VarRecipe", ""}, {"ChildID", 0}});
        recordset->addNew(Values{{"ParentID", 1}, {"VarRecipe", ""}, {"ChildID", 2}});
    }
    for (const std::int32_t child : {0, 2, 3}) {
        recordset->addNew(Values{{"ParentID", 1}, {"VarRecipe", "CIP.Datei"}, {"ChildID", child}});
    }
    EXPECT_EQ(recordset->recordCount(), 7);
}

TEST_P(Edit, ARecipeHasASubRecipeOnceUnderTheSameVariable) {
    const auto recordset = members();
    recordset->addNew(Values{{"ParentID", 1}, {"VarRecipe", "CIP.Datei"}, {"ChildID", 2}});
    EXPECT_EQ(errorNumber([&] {
                  recordset->addNew(Values{{"ParentID", 1}, {"VarRecipe", "cip.datei"}, {"ChildID", 2}});
              }),
              ado::dbErrDuplicate);
    recordset->cancelUpdate();
    recordset->addNew(Values{{"ParentID", 1}, {"VarRecipe", "Other"}, {"ChildID", 2}});
    recordset->field("VarRecipe").setValue("CIP.Datei");
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrDuplicate);
    recordset->cancelUpdate();
    EXPECT_EQ(stored("TrcpRecipeMember", "VarRecipe"), "CIP.Datei,Other");
}

TEST_P(Edit, AddNewWithAnUnknownColumnStoresNothing) {
    const auto recordset = recipes();
    EXPECT_EQ(errorNumber([&] { recordset->addNew(Values{{"Name", "D"}, {"NoColumn", 1}}); }), ado::adErrItemNotFound);
    EXPECT_EQ(recordset->editMode(), ado::adEditNone);
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "A,B,C");
}

TEST_P(Edit, ARefusedNewRowCanBeCorrectedOrCancelled) {
    const auto recordset = recipes();
    recordset->addNew();
    recordset->field("Name").setValue("a");
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrDuplicate);
    EXPECT_EQ(recordset->editMode(), ado::adEditAdd);
    recordset->field("Name").setValue("D");
    recordset->update();
    recordset->addNew();
    recordset->field("Name").setValue("d");
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrDuplicate);
    recordset->cancelUpdate();
    recordset->close();
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "A,B,C,D");
}

TEST_P(Edit, NamesAreTriedUntilOneIsFree) {
    const auto recordset = recipes();
    const auto create = [&] {
        for (int n = 1;; ++n) {
            const std::string name = n == 1 ? "Neues Rezept" : "Neues Rezept(" + std::to_string(n) + ")";
            if (errorNumber([&] { recordset->addNew(Values{{"Name", name}}); }) == 0) return name;
            recordset->cancelUpdate();
        }
    };
    EXPECT_EQ(create(), "Neues Rezept");
    EXPECT_EQ(create(), "Neues Rezept(2)");
    EXPECT_EQ(create(), "Neues Rezept(3)");
    EXPECT_EQ(recordset->recordCount(), 6);
}

TEST_P(Edit, ANewRowStandsAtTheEndEvenOfAnOrderedRecordset) {
    const auto recordset = open("SELECT * FROM TrcpRecipe ORDER BY Name DESC");
    EXPECT_EQ(recordset->recordCount(), 3);
    recordset->addNew(Values{{"Name", "AA"}});
    EXPECT_EQ(column(*recordset, "Name"), "C,B,A,AA");
    recordset->requery();
    EXPECT_EQ(column(*recordset, "Name"), "C,B,AA,A");
}

TEST_P(Edit, ManyNewRowsNeedNoKeysToBeRead) {
    const auto recordset = members();
    for (int i = 0; i < 300; ++i) recordset->addNew(Values{{"VarRecipe", "V"}, {"ParentID", i}, {"ChildID", 0}});
    EXPECT_EQ(recordset->field("ID").value(), Variant(300));
    EXPECT_EQ(recordset->recordCount(), 300);
}

TEST_P(Edit, ResyncShowsWhatIsStoredAndDropsTheEdit) {
    const auto recordset = recipes();
    EXPECT_EQ(recordset->field("Comment").value(), Variant(""));
    Recordset other;
    other.open("TrcpRecipe", connect());
    other.field("Comment").setValue("theirs");
    other.update();
    recordset->field("Name").setValue("mine");
    recordset->resync(ado::adAffectCurrent);
    EXPECT_EQ(recordset->editMode(), ado::adEditNone);
    EXPECT_EQ(recordset->field("Name").value(), Variant("A"));
    EXPECT_EQ(recordset->field("Comment").value(), Variant("theirs"));
    recordset->field("Name").setValue("mine");
    recordset->resync();
    recordset->moveFirst();
    EXPECT_EQ(recordset->field("Name").value(), Variant("A"));
}

TEST_P(Edit, ResyncOfTheCurrentRowNeedsOne) {
    const auto recordset = recipes();
    recordset->moveLast();
    recordset->moveNext();
    EXPECT_EQ(errorNumber([&] { recordset->resync(ado::adAffectCurrent); }), ado::adErrNoCurrentRecord);
    recordset->resync();
    recordset->moveFirst();
    Recordset other;
    other.open("DELETE * FROM TrcpRecipe WHERE ID = 1", connect());
    EXPECT_EQ(errorNumber([&] { recordset->resync(ado::adAffectCurrent); }), ado::dbErrDeletedRow);
}

TEST_P(Edit, AnotherRecordsetOfTheConnectionSeesAChangeAtOnce) {
    const auto one = recipes();
    const auto two = recipes();
    EXPECT_EQ(two->field("Comment").value(), Variant(""));
    one->field("Comment").setValue("x");
    one->update();
    EXPECT_EQ(two->field("Comment").value(), Variant("x"));
    one->moveNext();
    one->remove();
    two->moveNext();
    EXPECT_EQ(two->field("Name").value(), Variant("C"));
}

TEST_P(Edit, RowsStayUpToDateWhileNobodyElseWrites) {
    const auto recordset = recipes();
    ASSERT_EQ(recordset->recordCount(), 3);
    const bool tells = recordset->isUpToDate();
    recordset->removeRows(std::array{recordset->bookmarkAt(1).key()});
    EXPECT_EQ(recordset->isUpToDate(), tells);
    recordset->requery();
    EXPECT_EQ(column(*recordset, "Name"), "A,C");
    recordset->moveFirst();
    recordset->field("Name").setValue("A2");
    recordset->update();
    EXPECT_FALSE(recordset->isUpToDate());
    recordset->requery();
    EXPECT_EQ(column(*recordset, "Name"), "A2,C");
}

TEST_P(Edit, RowsAreNotUpToDateWhenAnybodyElseHasWritten) {
    const auto recordset = recipes();
    ASSERT_EQ(recordset->recordCount(), 3);
    addRecipes({"D"});
    EXPECT_FALSE(recordset->isUpToDate());
    recordset->requery();
    EXPECT_EQ(column(*recordset, "Name"), "A,B,C,D");
    ado::Recordset other;
    other.open("TrcpRecipe", connect());
    other.remove();
    EXPECT_FALSE(recordset->isUpToDate());
    recordset->requery();
    EXPECT_EQ(column(*recordset, "Name"), "B,C,D");
    connection_->beginTrans();
    recordset->removeRows(std::array{recordset->bookmarkAt(0).key()});
    connection_->rollbackTrans();
    EXPECT_FALSE(recordset->isUpToDate());
    EXPECT_EQ(recordset->recordCount(), 3);
}

INSTANTIATE_TEST_SUITE_P(Provider, Edit, testing::ValuesIn(storeKinds()),
                         [](const auto& kind) { return kind.param.name; });

}  // namespace

}  // namespace hx::contract
