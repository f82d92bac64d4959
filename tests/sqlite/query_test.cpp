// SPDX-License-Identifier: MIT

// Commands of all kinds on a project file, and rows that other programs have written.
#include "project_fixture.h"

namespace hx::sqlite {

namespace {

class Query : public ProjectTest {
  protected:
    Query() : connection_(connect()), file_(path_) {}

    std::string single(const std::string& source) {
        const auto recordset = open(connection_, source);
        std::string text;
        for (; !recordset->eof(); recordset->moveNext()) {
            if (!text.empty()) text += ",";
            for (std::size_t i = 0; i < recordset->fieldCount(); ++i) {
                text += (i > 0 ? "|" : "") + automation::toText(recordset->field(i).value());
            }
        }
        return text;
    }
    void addMembers() {
        file_.run(
            "INSERT INTO TrcpRecipe(Name) VALUES('A'),('B');"
            "INSERT INTO TrcpRecipeMember(ParentID,VarRecipe,ChildID) VALUES(1,'x',0),(2,'y',0),(1,'z',2),(1,'w',0)");
    }

    std::shared_ptr<ado::Connection> connection_;
    RawFile file_;
};

// Sorted here or by SQLite, which is told by a second term.
TEST_F(Query, TextsAreSortedAsTheirCollationSays) {
    file_.run(
        "INSERT INTO TrcpRecipeMember(ParentID,VarRecipe,ChildID) VALUES(1,'Behälter.Füllstand',5),(1,'b',4),"
        "(1,'BEHÄLTER.FÜLLSTAND',3),(1,NULL,2),(1,'behälter',1),(1,'',9),(1,'behälter.füllstand.soll.lang',8),"
        "(1,NULL,7),(1,'Ä',6),(1,'B',5),(1,'behälter.',4)");
    for (const std::string where : {"", " WHERE ParentID = 1", " WHERE ParentID = 1 AND ChildID <> 0"}) {
        for (const std::string order : {"", " DESC"}) {
            const std::string sql = "SELECT ID FROM TrcpRecipeMember" + where + " ORDER BY VarRecipe" + order;
            EXPECT_EQ(single(sql), single(sql + ", ID")) << sql;
        }
    }
    EXPECT_EQ(single("SELECT VarRecipe FROM TrcpRecipeMember WHERE ChildID < 6 ORDER BY VarRecipe DESC"),
              "Behälter.Füllstand,BEHÄLTER.FÜLLSTAND,behälter.,behälter,b,B,");
}

TEST_F(Query, WhatIsNoTextIsSortedAmongTexts) {
    file_.run("INSERT INTO TrcpRecipeMember(ParentID,VarRecipe,ChildID) VALUES(1,'b',1),(1,x'41',1),(1,'a',1)");
    EXPECT_EQ(single("SELECT ID FROM TrcpRecipeMember ORDER BY VarRecipe"), "3,1,2");
}

TEST_F(Query, AggregatesAndJoinsAreReadOnly) {
    addMembers();
    EXPECT_EQ(single("SELECT COUNT(*) AS N FROM TrcpRecipeMember WHERE ParentID = 1"), "3");
    EXPECT_EQ(single("SELECT r.Name, m.VarRecipe FROM TrcpRecipe r INNER JOIN TrcpRecipeMember m ON m.ParentID = r.ID "
                     "ORDER BY m.ID"),
              "A|x,B|y,A|z,A|w");
    EXPECT_EQ(single("SELECT DISTINCT ParentID FROM TrcpRecipeMember ORDER BY ParentID"), "1,2");
    EXPECT_EQ(single("SELECT TOP 2 VarRecipe FROM TrcpRecipeMember ORDER BY VarRecipe"), "w,x");
    const auto recordset = open(connection_, "SELECT COUNT(*) AS N, MAX(VarRecipe) AS M FROM TrcpRecipeMember");
    EXPECT_EQ(recordset->field("N").type(), ado::adInteger);
    EXPECT_EQ(recordset->field("M").type(), ado::adVarWChar);
    EXPECT_EQ(errorOf([&] { recordset->field("N").setValue(1); }).number(), ado::adErrIllegalOperation);
    EXPECT_EQ(errorOf([&] { recordset->remove(); }).number(), ado::adErrIllegalOperation);
    recordset->addNew();
    EXPECT_EQ(errorOf([&] { recordset->update(); }).number(), ado::adErrIllegalOperation);
}

TEST_F(Query, AQueryWithoutKeysCanBeFilteredAndSearched) {
    addMembers();
    const auto recordset =
        open(connection_, "SELECT m.VarRecipe, r.Name FROM TrcpRecipeMember m, TrcpRecipe r WHERE r.ID = m.ParentID");
    recordset->setFilter("Name = 'a'");
    EXPECT_EQ(recordset->recordCount(), 3);
    recordset->find("VarRecipe = 'Z'");
    EXPECT_EQ(recordset->absolutePosition(), 2);
}

TEST_F(Query, CommandsChangeRows) {
    addMembers();
    ado::Recordset command;
    command.open("UPDATE TrcpRecipe SET Enabled = True, Comment = \"it's \" & Name WHERE Name = 'a'", connection_);
    command.open("INSERT INTO TrcpRecipe (Name, Enabled) VALUES ('C', False)", connection_);
    command.open("DELETE * FROM TrcpRecipeMember WHERE ParentID = 1 And ChildID = 0", connection_);
    EXPECT_EQ(command.state(), ado::adStateClosed);
    EXPECT_EQ(single("SELECT ID, Enabled, Comment FROM TrcpRecipe"), "1|True|it's A,2|False|,3|False|");
    EXPECT_EQ(single("SELECT VarRecipe FROM TrcpRecipeMember"), "y,z");
}

TEST_F(Query, ACommandThatFailsHasChangedNothing) {
    addMembers();
    ado::Recordset command;
    EXPECT_EQ(errorOf([&] { command.open("UPDATE TrcpRecipe SET Name = 'same'", connection_); }).number(),
              ado::dbErrDuplicate);
    EXPECT_EQ(single("SELECT Name FROM TrcpRecipe"), "A,B");
}

TEST_F(Query, UnknownNamesAreNamed) {
    const auto description = [this](const std::string& source) {
        return errorOf([&] { (void)open(connection_, source); }).description();
    };
    EXPECT_EQ(description("Nowhere"), "There is no table \"Nowhere\".");
    EXPECT_EQ(description("SELECT COUNT(*) FROM Nowhere"), "There is no table \"Nowhere\".");
    EXPECT_EQ(description("SELECT * FROM TrcpRecipe WHERE Foo = 1"), "There is no column \"Foo\".");
    EXPECT_EQ(description("SELECT * FROM TrcpRecipe WHERE [Foo] = 1"), "There is no column \"Foo\".");
    EXPECT_EQ(description("SELECT * FROM TrcpRecipe ORDER BY Foo"), "Table \"TrcpRecipe\" has no column \"Foo\".");
    EXPECT_EQ(description("SELECT Foo FROM TrcpRecipe"), "Table \"TrcpRecipe\" has no column \"Foo\".");
    EXPECT_EQ(description("DELETE FROM Nowhere"), "There is no table \"Nowhere\".");
    EXPECT_EQ(description("SELECT hx_keys(ID) FROM TrcpRecipe WHERE 1 = 2 GROUP BY ID"), "no error");
}

TEST_F(Query, TheKeysAreCollectedInOrderWhateverTheOrder) {
    file_.run(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<2000) "
        "INSERT INTO TrcpRecipeMember(ParentID,VarRecipe,ChildID) SELECT i%7, 'V'||(i*7919%2000), i%3 FROM n");
    const std::string where = " FROM TrcpRecipeMember WHERE ParentID = 3";
    for (const char* order : {"ID", "ID DESC", "VarRecipe COLLATE NOCASE, ID", "VarRecipe COLLATE NOCASE DESC, ID",
                              "ChildID, VarRecipe COLLATE NOCASE, ID"}) {
        std::string jet = order;
        for (const std::string_view extra : {" COLLATE NOCASE", ", ID"}) {
            if (jet.size() > 7 && jet.find(extra) != std::string::npos) jet.erase(jet.find(extra), extra.size());
        }
        const auto recordset = open(connection_, "SELECT *" + where + " ORDER BY " + jet);
        EXPECT_EQ(recordset->recordCount(), 286);
        EXPECT_EQ(column(*recordset, "ID"), file_.query("SELECT ID" + where + " ORDER BY " + order)) << jet;
    }
    EXPECT_EQ(column(*open(connection_, "TrcpRecipeMember"), "ID"),
              file_.query("SELECT ID FROM TrcpRecipeMember ORDER BY ID"));
}

TEST_F(Query, AMemberQueryReadsItsKeysFromTheIndexAlone) {
    EXPECT_EQ(file_.query("EXPLAIN QUERY PLAN SELECT ID FROM TrcpRecipeMember WHERE ParentID = 1 And ChildID = 0 "
                          "ORDER BY ID"),
              "3|0|0|SEARCH TrcpRecipeMember USING COVERING INDEX IrcpRecipeMember_ParentID_ChildID "
              "(ParentID=? AND ChildID=?)");
}

TEST_F(Query, OrderByTextComparesLettersBeyondAscii) {
    file_.run("INSERT INTO TrcpRecipe(Name) VALUES('überlauf'),('Zucker'),('ÜBERDRUCK'),('aroma'),('Aromatisch')");
    EXPECT_EQ(single("SELECT Name FROM TrcpRecipe ORDER BY Name"), "aroma,Aromatisch,Zucker,ÜBERDRUCK,überlauf");
}

TEST_F(Query, BothWaysToStoreTrueReadAsTrue) {
    file_.run("INSERT INTO TrcpRecipe(Name,Enabled) VALUES('A',1),('B',-1),('C',0)");
    const auto recordset = open(connection_, "TrcpRecipe");
    EXPECT_EQ(column(*recordset, "Enabled"), "True,True,False");
    recordset->setFilter("Enabled = True");
    EXPECT_EQ(recordset->recordCount(), 2);
    EXPECT_EQ(single("SELECT Name FROM TrcpRecipe WHERE Enabled"), "A,B");
    EXPECT_EQ(single("SELECT Name FROM TrcpRecipe WHERE Enabled = -1 ORDER BY Enabled, ID DESC"), "B,A");
    EXPECT_EQ(single("SELECT Name FROM TrcpRecipe WHERE Not Enabled"), "C");
    recordset->setFilter("");
    recordset->moveLast();
    recordset->field("Enabled").setValue(std::int16_t{1});
    recordset->update();
    EXPECT_EQ(file_.query("SELECT Enabled FROM TrcpRecipe"), "1,-1,1");
}

TEST_F(Query, FurtherColumnsSurviveEveryWrite) {
    file_.run(
        "ALTER TABLE TrcpRecipe ADD COLUMN HostData BLOB; ALTER TABLE TrcpRecipe ADD COLUMN Rank SMALLINT DEFAULT 5;"
        "INSERT INTO TrcpRecipe(Name,HostData) VALUES('A',x'00FF41')");
    const auto recordset = open(connection_, "TrcpRecipe");
    EXPECT_EQ(recordset->field("Rank").type(), ado::adSmallInt);
    EXPECT_EQ(recordset->field("Rank").value(), Variant(5));
    for (std::size_t i = 0; i < recordset->fieldCount(); ++i) (void)recordset->field(i).value();
    recordset->field("Name").setValue("B");
    recordset->update();
    recordset->addNew(Values{{"Name", "C"}});
    EXPECT_EQ(file_.query("SELECT Name, hex(HostData), Rank FROM TrcpRecipe"), "B|00FF41|5,C||5");
}

TEST_F(Query, AColumnThatAppearsIsSeenAtTheNextOpening) {
    const auto recordset = open(connection_, "TrcpRecipeMember");
    EXPECT_EQ(recordset->fieldCount(), 4U);
    file_.run("ALTER TABLE TrcpRecipeMember ADD COLUMN Unit VARCHAR(10) DEFAULT 'bar'");
    recordset->close();
    recordset->open();
    ASSERT_EQ(recordset->fieldCount(), 5U);
    EXPECT_EQ(recordset->field(4).name(), "Unit");
    recordset->addNew(Values{{"VarRecipe", "x"}});
    EXPECT_EQ(recordset->field("Unit").value(), Variant("bar"));
}

TEST_F(Query, ValuesOfAnotherTypeAreConverted) {
    file_.run(
        "INSERT INTO TrcpRecipe(Name,Options,StandardValue,Comment) VALUES('A','12abc',NULL,NULL),"
        "('B',5000000000,'x',42)");
    const auto recordset = open(connection_, "TrcpRecipe");
    EXPECT_EQ(recordset->field("Options").value(), Variant(12));
    EXPECT_TRUE(recordset->field("StandardValue").value().isNull());
    EXPECT_TRUE(recordset->field("Comment").value().isNull());
    recordset->moveNext();
    EXPECT_EQ(recordset->field("Options").value(), Variant(5000000000.0));
    EXPECT_EQ(recordset->field("StandardValue").value(), Variant(0.0));
    EXPECT_EQ(recordset->field("Comment").value(), Variant("42"));
}

TEST_F(Query, KeysBeyond32BitsWork) {
    file_.run(
        "INSERT INTO TrcpRecipeMember(ID,ParentID,VarRecipe) VALUES(1,1,'a'),(5000000000,1,'b'),(5000000001,1,'c')");
    const auto recordset = open(connection_, "SELECT * FROM TrcpRecipeMember WHERE ParentID = 1 ORDER BY ID");
    EXPECT_EQ(column(*recordset, "VarRecipe"), "a,b,c");
    recordset->moveFirst();
    recordset->find("ID = 5000000000");
    EXPECT_EQ(recordset->field("VarRecipe").value(), Variant("b"));
    EXPECT_EQ(recordset->field("ID").value(), Variant(5000000000.0));
    recordset->remove();
    EXPECT_EQ(file_.query("SELECT VarRecipe FROM TrcpRecipeMember"), "a,c");
}

TEST_F(Query, ATableWithoutAnIntegerKeyIsReadByItsRowNumbers) {
    file_.run(
        "CREATE TABLE Notes (Title VARCHAR(20) PRIMARY KEY, Body LONGTEXT); INSERT INTO Notes "
        "VALUES('a','1'),('b','2');"
        "CREATE TABLE Codes (Code VARCHAR(5) PRIMARY KEY) WITHOUT ROWID; INSERT INTO Codes VALUES('z'),('y')");
    const auto notes = open(connection_, "Notes");
    notes->find("Title = 'B'");
    notes->field("Body").setValue("two");
    notes->update();
    EXPECT_EQ(file_.query("SELECT Body FROM Notes"), "1,two");
    EXPECT_EQ(single("Codes"), "y,z");
}

TEST_F(Query, MissingValuesOfRulesAreRefused) {
    const auto recordset = open(connection_, "TrcpRecipe");
    const auto error = errorOf([&] { recordset->addNew(Values{{"Comment", "no name"}}); });
    EXPECT_EQ(error.number(), ado::dbErrIntegrity);
    EXPECT_EQ(error.description(), "Column \"TrcpRecipe.Name\" needs a value.");
}

TEST_F(Query, UniqueNamesBeyondAsciiHoldForCommandsToo) {
    const auto recordset = open(connection_, "TrcpRecipe");
    for (const char* name : {"Übergabe", "Mühle", "Mühle 2", "Muehle"}) recordset->addNew(Values{{"Name", name}});
    ado::Recordset command;
    const auto insert = [&](const std::string& name) {
        return errorOf([&] { command.open("INSERT INTO TrcpRecipe (Name) VALUES ('" + name + "')", connection_); })
            .number();
    };
    EXPECT_EQ(insert("üBERGABE"), ado::dbErrDuplicate);
    EXPECT_EQ(insert("MÜHLE"), ado::dbErrDuplicate);
    EXPECT_EQ(insert("mÜhle 2"), ado::dbErrDuplicate);
    EXPECT_EQ(insert("MÜHLE 3"), 0);
    EXPECT_EQ(errorOf([&] { command.open("UPDATE TrcpRecipe SET Name = 'MÜHLE' WHERE ID = 4", connection_); }).number(),
              ado::dbErrDuplicate);
    EXPECT_EQ(errorOf([&] { command.open("UPDATE TrcpRecipe SET Name = 'MÜHLE' WHERE ID = 2", connection_); }).number(),
              0);
    EXPECT_EQ(file_.query("SELECT count(*) FROM TrcpRecipe"), "5");
}

TEST_F(Query, WhatAnotherProgramWritesIsSeenAfterARequery) {
    addMembers();
    const auto recordset = open(connection_, "TrcpRecipe");
    EXPECT_EQ(recordset->recordCount(), 2);
    file_.run("INSERT INTO TrcpRecipe(Name) VALUES('C'); UPDATE TrcpRecipe SET Name='a2' WHERE ID=1");
    EXPECT_EQ(recordset->recordCount(), 2);
    recordset->requery();
    EXPECT_EQ(column(*recordset, "Name"), "a2,B,C");
}

TEST_F(Query, SparseAndUnorderedRowsAreRead) {
    for (int i = 1; i <= 40; ++i) {
        file_.run("INSERT INTO TrcpRecipeMember(ID,ParentID,VarRecipe) VALUES(" + std::to_string(i * 1000) + ",1,'V" +
                  std::to_string(i) + "')");
    }
    const auto ascending = open(connection_, "TrcpRecipeMember");
    EXPECT_EQ(ascending->valueAt(39, 2), Variant("V40"));
    const auto descending = open(connection_, "SELECT * FROM TrcpRecipeMember ORDER BY ID DESC");
    EXPECT_EQ(descending->valueAt(39, 2), Variant("V1"));
    EXPECT_EQ(descending->valueAt(0, 2), Variant("V40"));
}

}  // namespace

}  // namespace hx::sqlite
