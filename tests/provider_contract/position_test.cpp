// SPDX-License-Identifier: MIT

// Moving, counting, searching, filtering, marking.
#include "store.h"

namespace hx::contract {

namespace {

class Position : public ProviderContract {
  protected:
    Position() { addRecipes({"Cola", "Apfelsaft", "Überdruck", "Banane", "D'Or"}); }
};

TEST_P(Position, AnOpenedRecordsetStandsOnItsFirstRow) {
    const auto recordset = recipes();
    EXPECT_FALSE(recordset->bof());
    EXPECT_FALSE(recordset->eof());
    EXPECT_EQ(recordset->recordCount(), 5);
    EXPECT_EQ(recordset->absolutePosition(), 1);
    EXPECT_EQ(recordset->field("Name").value(), Variant("Cola"));
}

TEST_P(Position, WalksForwardToEofAndBackToBof) {
    const auto recordset = recipes();
    EXPECT_EQ(column(*recordset, "ID"), "1,2,3,4,5");
    EXPECT_TRUE(recordset->eof());
    EXPECT_EQ(errorNumber([&] { recordset->moveNext(); }), ado::adErrNoCurrentRecord);
    EXPECT_EQ(errorNumber([&] { (void)recordset->field("ID").value(); }), ado::adErrNoCurrentRecord);
    EXPECT_EQ(recordset->absolutePosition(), -1);
    EXPECT_TRUE(recordset->bookmark().isNull());
    recordset->movePrevious();
    EXPECT_EQ(recordset->field("ID").value(), Variant(5));
    for (int i = 0; i < 5; ++i) recordset->movePrevious();
    EXPECT_TRUE(recordset->bof());
    EXPECT_EQ(errorNumber([&] { recordset->movePrevious(); }), ado::adErrNoCurrentRecord);
    recordset->moveNext();
    EXPECT_EQ(recordset->field("ID").value(), Variant(1));
}

TEST_P(Position, AnEmptyRecordsetIsAtBothEnds) {
    const auto recordset = members();
    EXPECT_TRUE(recordset->bof());
    EXPECT_TRUE(recordset->eof());
    EXPECT_EQ(recordset->recordCount(), 0);
    EXPECT_EQ(errorNumber([&] { recordset->moveFirst(); }), ado::adErrNoCurrentRecord);
    EXPECT_EQ(errorNumber([&] { recordset->moveLast(); }), ado::adErrNoCurrentRecord);
    EXPECT_EQ(errorNumber([&] { recordset->moveNext(); }), ado::adErrNoCurrentRecord);
    EXPECT_EQ(errorNumber([&] { recordset->movePrevious(); }), ado::adErrNoCurrentRecord);
    recordset->find("ID=1");
    EXPECT_TRUE(recordset->eof());
}

TEST_P(Position, TheMemberQueryOfTheRootIsEmpty) {
    addVariables(1, 3);
    const auto recordset = open("SELECT * FROM TrcpRecipeMember WHERE ParentID = -1 ORDER BY ID");
    EXPECT_EQ(recordset->recordCount(), 0);
    EXPECT_TRUE(recordset->eof());
}

TEST_P(Position, MovesToALineByItsNumber) {
    const auto recordset = recipes();
    recordset->setAbsolutePosition(4);
    EXPECT_EQ(recordset->field("Name").value(), Variant("Banane"));
    EXPECT_EQ(errorNumber([&] { recordset->setAbsolutePosition(0); }), ado::adErrInvalidArgument);
    EXPECT_EQ(errorNumber([&] { recordset->setAbsolutePosition(6); }), ado::adErrInvalidArgument);
    EXPECT_EQ(recordset->absolutePosition(), 4);
}

TEST_P(Position, FindsByNameIgnoringCase) {
    const auto recordset = recipes();
    recordset->find("Name='APFELSAFT'");
    EXPECT_EQ(recordset->field("ID").value(), Variant(2));
    recordset->find("Name='überDRUCK'");
    EXPECT_EQ(recordset->field("ID").value(), Variant(3));
    recordset->find("Name='D''Or'");
    EXPECT_EQ(recordset->field("ID").value(), Variant(5));
}

TEST_P(Position, FindsByIdWithAndWithoutABlank) {
    const auto recordset = recipes();
    recordset->find("ID=4");
    EXPECT_EQ(recordset->field("Name").value(), Variant("Banane"));
    recordset->moveFirst();
    recordset->find("ID= 3");
    EXPECT_EQ(recordset->absolutePosition(), 3);
}

TEST_P(Position, FindLooksFromTheCurrentRowOnAndCountsIt) {
    const auto recordset = recipes();
    recordset->moveLast();
    recordset->find("ID=5");
    EXPECT_EQ(recordset->absolutePosition(), 5);
    recordset->find("ID=2");
    EXPECT_TRUE(recordset->eof());
    recordset->moveFirst();
    recordset->find("Name LIKE '*a*'", 1);
    EXPECT_EQ(recordset->absolutePosition(), 2);
    recordset->find("Name LIKE '*a*'", 1);
    EXPECT_EQ(recordset->absolutePosition(), 4);
}

TEST_P(Position, FindLooksBackwardToo) {
    const auto recordset = recipes();
    recordset->moveLast();
    recordset->find("Name LIKE '*a*'", 0, ado::adSearchBackward);
    EXPECT_EQ(recordset->absolutePosition(), 4);
    recordset->find("Name LIKE '*a*'", 1, ado::adSearchBackward);
    EXPECT_EQ(recordset->absolutePosition(), 2);
    recordset->find("Name = 'nobody'", 0, ado::adSearchBackward);
    EXPECT_TRUE(recordset->bof());
}

TEST_P(Position, WhatIsNotFoundLeadsToEof) {
    const auto recordset = recipes();
    recordset->find("Name='nobody'");
    EXPECT_TRUE(recordset->eof());
    EXPECT_EQ(errorNumber([&] { recordset->field("Name").setValue("x"); }), ado::adErrNoCurrentRecord);
}

TEST_P(Position, AMalformedCriterionIsRefusedAndMovesNothing) {
    const auto recordset = recipes();
    recordset->setAbsolutePosition(2);
    EXPECT_EQ(errorNumber([&] { recordset->find("Name='D'Or'"); }), ado::adErrInvalidArgument);
    EXPECT_EQ(errorNumber([&] { recordset->find("NoColumn=1"); }), ado::adErrInvalidArgument);
    EXPECT_EQ(errorNumber([&] { recordset->setFilter("Name='D'Or'"); }), ado::adErrInvalidArgument);
    EXPECT_EQ(recordset->absolutePosition(), 2);
    EXPECT_EQ(recordset->filter(), "");
}

TEST_P(Position, AFilterLeavesTheMatchingRows) {
    const auto recordset = recipes();
    recordset->moveLast();
    recordset->setFilter("Name LIKE '*a*' And ID > 1");
    EXPECT_EQ(recordset->filter(), "Name LIKE '*a*' And ID > 1");
    EXPECT_EQ(recordset->recordCount(), 2);
    EXPECT_EQ(column(*recordset, "Name"), "Apfelsaft,Banane");
    recordset->setFilter("");
    EXPECT_EQ(recordset->recordCount(), 5);
    EXPECT_EQ(recordset->absolutePosition(), 1);
}

TEST_P(Position, AFilterAddsToTheCondition) {
    const auto recordset = open("SELECT * FROM TrcpRecipe WHERE ID > 2 ORDER BY Name DESC");
    recordset->setFilter("ID < 5");
    EXPECT_EQ(column(*recordset, "Name"), "Überdruck,Banane");
    recordset->setFilter("ID = 1");
    EXPECT_TRUE(recordset->eof());
}

TEST_P(Position, EveryComparisonMeansTheSameAsAFilterAndAsASearch) {
    const auto all = recipes();
    all->field("StandardValue").setValue(1.5);
    all->field("Enabled").setValue(true);
    all->field("FilePath").setValue("<ProjectDir>\\R");
    all->update();
    all->moveNext();
    all->field("FilePath").setValue(automation::Null{});
    all->update();
    const char* const conditions[] = {
        "ID = 2",
        "ID <> 2",
        "ID < 2.5",
        "ID <= 2",
        "ID > 4",
        "ID >= 4",
        "ID = 2.5",
        "Name = 'BANANE'",
        "Name <> 'banane'",
        "Name < 'c'",
        "Name >= 'cola'",
        "Name = 'ÜBERdruck'",
        "Name <> 'überdruck'",
        "Name > 'd'",
        "Name LIKE '*Ü*'",
        "Name LIKE 'b%'",
        "Name LIKE '_ola'",
        "Name LIKE 'D''*'",
        "Name LIKE '*'",
        "StandardValue = 1.5",
        "StandardValue <> 1.5",
        "Enabled = True",
        "Enabled = False",
        "Enabled = -1",
        "Enabled <> 1",
        "FilePath = Null",
        "FilePath <> Null",
        "FilePath = '<projectdir>\\r'",
        "FilePath <> 'x'",
        "Name = 'nobody'",
    };
    for (const char* const condition : conditions) {
        const auto filtered = recipes();
        filtered->setFilter(condition);
        std::string found;
        all->moveFirst();
        for (all->find(condition); !all->eof(); all->find(condition, 1)) {
            found += (found.empty() ? "" : ",") + std::to_string(all->field("ID").value().asInt32());
        }
        EXPECT_EQ(column(*filtered, "ID"), found) << condition;
    }
}

TEST_P(Position, SearchesBeyondThePagesInBothDirections) {
    addVariables(7, 2000);
    const auto recordset = open("SELECT * FROM TrcpRecipeMember WHERE ParentID = 7 ORDER BY ID");
    recordset->find("VarRecipe='v1999'");
    EXPECT_EQ(recordset->absolutePosition(), 1999);
    recordset->find("VarRecipe='v3'", 0, ado::adSearchBackward);
    EXPECT_EQ(recordset->absolutePosition(), 3);
    recordset->find("VarRecipe='v2'");
    EXPECT_TRUE(recordset->eof());
    const auto descending = open("SELECT * FROM TrcpRecipeMember WHERE ParentID = 7 ORDER BY ID DESC");
    descending->find("VarRecipe='v7'");
    EXPECT_EQ(descending->absolutePosition(), 1994);
    descending->find("VarRecipe LIKE 'v1*'", 1, ado::adSearchBackward);
    EXPECT_EQ(descending->absolutePosition(), 1991);
}

TEST_P(Position, OrdersByIdByTextAndDescending) {
    EXPECT_EQ(column(*open("SELECT * FROM TrcpRecipe ORDER BY ID DESC"), "ID"), "5,4,3,2,1");
    EXPECT_EQ(column(*open("SELECT * FROM TrcpRecipe WHERE ID < 5 ORDER BY Name"), "Name"),
              "Apfelsaft,Banane,Cola,Überdruck");
    EXPECT_EQ(column(*open("SELECT * FROM TrcpRecipe ORDER BY Enabled, Name DESC"), "ID"), "3,5,1,4,2");
}

TEST_P(Position, OrderIgnoresCase) {
    addRecipes({"ananas", "BIRNE", "überlauf"});
    EXPECT_EQ(column(*open("SELECT * FROM TrcpRecipe WHERE ID <> 5 ORDER BY Name"), "Name"),
              "ananas,Apfelsaft,Banane,BIRNE,Cola,Überdruck,überlauf");
}

TEST_P(Position, ABookmarkServesTheRecordsetAndItsClone) {
    const auto recordset = recipes();
    recordset->setAbsolutePosition(3);
    const ado::Bookmark bookmark = recordset->bookmark();
    const auto copy = recordset->clone();
    EXPECT_EQ(copy->absolutePosition(), 1);
    copy->setBookmark(bookmark);
    EXPECT_EQ(copy->field("Name").value(), Variant("Überdruck"));
    EXPECT_EQ(copy->bookmark(), bookmark);
    EXPECT_EQ(errorNumber([&] { copy->setBookmark({}); }), ado::adErrInvalidArgument);
    EXPECT_EQ(errorNumber([&] { copy->setBookmark(ado::Bookmark(99)); }), ado::adErrInvalidArgument);
}

TEST_P(Position, ABookmarkSurvivesARequery) {
    const auto recordset = recipes();
    recordset->setAbsolutePosition(4);
    const ado::Bookmark bookmark = recordset->bookmark();
    addRecipes({"E"});
    recordset->requery();
    EXPECT_EQ(recordset->absolutePosition(), 1);
    EXPECT_EQ(recordset->recordCount(), 6);
    recordset->setBookmark(bookmark);
    EXPECT_EQ(recordset->field("Name").value(), Variant("Banane"));
}

TEST_P(Position, ACloneHasAFilterOfItsOwnAndOutlivesTheOriginal) {
    const auto recordset = recipes();
    recordset->setFilter("ID > 3");
    const auto copy = recordset->clone();
    EXPECT_EQ(copy->recordCount(), 5);
    copy->setFilter("ID = 2");
    EXPECT_EQ(recordset->recordCount(), 2);
    recordset->close();
    EXPECT_EQ(copy->field("Name").value(), Variant("Apfelsaft"));
    copy->close();
    EXPECT_EQ(errorNumber([&] { copy->close(); }), ado::adErrObjectClosed);
}

TEST_P(Position, ReadsByPositionWithoutMoving) {
    const auto recordset = recipes();
    recordset->setAbsolutePosition(2);
    EXPECT_EQ(recordset->valueAt(4, 1), Variant("D'Or"));
    EXPECT_EQ(recordset->valueAt(0, 0), Variant(1));
    EXPECT_TRUE(recordset->valueAt(5, 1).isNull());
    EXPECT_EQ(errorNumber([&] { (void)recordset->valueAt(0, 99); }), ado::adErrItemNotFound);
    EXPECT_EQ(recordset->indexOf(recordset->bookmarkAt(3)), 3);
    EXPECT_TRUE(recordset->bookmarkAt(5).isNull());
    EXPECT_EQ(recordset->indexOf({}), -1);
    EXPECT_EQ(recordset->indexOf(ado::Bookmark(77)), -1);
    EXPECT_EQ(recordset->absolutePosition(), 2);
}

TEST_P(Position, SelectsSomeColumnsOnly) {
    const auto recordset = open("SELECT Name, ID FROM TrcpRecipe WHERE Name <> 'Cola' ORDER BY ID");
    ASSERT_EQ(recordset->fieldCount(), 2U);
    EXPECT_EQ(recordset->field(0).name(), "Name");
    EXPECT_EQ(recordset->field(1).value(), Variant(2));
    EXPECT_EQ(column(*recordset, "Name"), "Apfelsaft,Überdruck,Banane,D'Or");
}

TEST_P(Position, FieldsAreReachedByNameAndNumber) {
    const auto recordset = recipes();
    EXPECT_EQ(recordset->field("nAmE").name(), "Name");
    EXPECT_EQ(recordset->field(1).name(), "Name");
    EXPECT_EQ(errorNumber([&] { (void)recordset->field("NoColumn"); }), ado::adErrItemNotFound);
    EXPECT_EQ(errorNumber([&] { (void)recordset->field(99); }), ado::adErrItemNotFound);
}

TEST_P(Position, RowsAreSortedByWhatAColumnShows) {
    const auto shown = [](const Variant& value) {
        const std::string& name = value.asString();
        return name == "Cola" ? "three" : name == "Banane" ? "Two" : "one";
    };
    const std::string ascending = "Apfelsaft,Überdruck,D'Or,Cola,Banane";
    const auto recordset = recipes();
    const auto clone = recordset->clone();
    recordset->sortBy(1, shown, false);
    EXPECT_EQ(column(*recordset, "Name"), ascending);
    EXPECT_EQ(column(*clone, "Name"), ascending);
    recordset->sortBy(1, shown, true);
    EXPECT_EQ(column(*recordset, "Name"), "Banane,Cola,Apfelsaft,Überdruck,D'Or");
    addRecipes({"Zimt"});
    recordset->requery();
    EXPECT_EQ(column(*recordset, "Name"), "Banane,Cola,Apfelsaft,Überdruck,D'Or,Zimt");
    recordset->close();
    recordset->open();
    EXPECT_EQ(column(*recordset, "Name"), "Cola,Apfelsaft,Überdruck,Banane,D'Or,Zimt");
    EXPECT_EQ(errorNumber([&] { recordset->sortBy(99, shown, false); }), ado::adErrItemNotFound);
}

INSTANTIATE_TEST_SUITE_P(Provider, Position, testing::ValuesIn(storeKinds()),
                         [](const auto& kind) { return kind.param.name; });

}  // namespace

}  // namespace hx::contract
