// SPDX-License-Identifier: MIT
#include "adapters/sqlite/jet_sql.h"

#include <gtest/gtest.h>

#include "automation/convert.h"

namespace hx::sqlite {

namespace {

TableInfo memberTable() {
    return {"TrcpRecipeMember",
            "ID",
            {columnOfType("ID", "INTEGER"), columnOfType("ParentID", "INTEGER"),
             columnOfType("VarRecipe", "VARCHAR(255)"), columnOfType("Aktiv Süd", "BOOLEAN")}};
}

std::string condition(std::string_view where) {
    const JetCommand command = JetCommand::parse("SELECT * FROM T WHERE " + std::string(where));
    const BoundSql bound = translateCondition(command.table.value().condition, memberTable());
    std::string text = bound.sql + " <-";
    for (const auto& value : bound.parameters) text += " " + automation::toText(value);
    return text;
}

std::string translated(std::string_view text) {
    const JetCommand command = JetCommand::parse(text);
    const TableInfo table = memberTable();
    return translateCommand(command.tokens, command.target.empty() ? nullptr : &table);
}

std::string problemOf(std::string_view text) {
    try {
        (void)JetCommand::parse(text);
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.number(), ado::dbErrBadCommand);
        return error.description();
    }
    return "no error";
}

TEST(JetSql, TakesTheMemberQueryApart) {
    const JetCommand command =
        JetCommand::parse("SELECT * FROM TrcpRecipeMember WHERE ParentID = 7 And ChildID <> 0 ORDER BY VarRecipe DESC");
    ASSERT_TRUE(command.table.has_value());
    EXPECT_EQ(command.table->table, "TrcpRecipeMember");
    EXPECT_TRUE(command.table->columns.empty());
    EXPECT_EQ(command.table->condition.size(), 7U);
    ASSERT_EQ(command.table->order.size(), 1U);
    EXPECT_EQ(command.table->order[0].column, "VarRecipe");
    EXPECT_TRUE(command.table->order[0].descending);
}

TEST(JetSql, TakesColumnsAndSeveralOrderTerms) {
    const JetCommand command =
        JetCommand::parse("select [ID], Name from [My Table] order by [Name] asc, ID desc, Options;");
    ASSERT_TRUE(command.table.has_value());
    EXPECT_EQ(command.table->table, "My Table");
    EXPECT_EQ(command.table->columns, (std::vector<std::string>{"ID", "Name"}));
    ASSERT_EQ(command.table->order.size(), 3U);
    EXPECT_FALSE(command.table->order[0].descending);
    EXPECT_TRUE(command.table->order[1].descending);
    EXPECT_EQ(command.table->order[2].column, "Options");
}

TEST(JetSql, LeavesOtherSelectsWhole) {
    for (const char* text :
         {"SELECT COUNT(*) FROM T", "SELECT DISTINCT A FROM T", "SELECT TOP 5 * FROM T", "SELECT A FROM T, U",
          "SELECT A FROM T INNER JOIN U ON T.A = U.A", "SELECT A FROM T WHERE B = 1 GROUP BY A",
          "SELECT A FROM T UNION SELECT A FROM U", "SELECT A + 1 FROM T", "SELECT * FROM T ORDER BY A + 1",
          "SELECT * FROM (SELECT * FROM T)"}) {
        EXPECT_FALSE(JetCommand::parse(text).table.has_value()) << text;
    }
}

TEST(JetSql, LiteralsOfAConditionBecomeParameters) {
    EXPECT_EQ(condition("ParentID = 7 And ID <> 0"), R"("ParentID" = ?1 And "ID" <> ?2 <- 7 0)");
    EXPECT_EQ(condition("ParentID = -1"), R"("ParentID" = - ?1 <- 1)");
    EXPECT_EQ(condition("[VarRecipe]='it''s' Or VarRecipe=\"say \"\"x\"\"\""),
              R"("VarRecipe" = ?1 Or "VarRecipe" = ?2 <- it's say "x")");
    EXPECT_EQ(condition("(parentid > 1.5E3)"), R"(( "ParentID" > ?1 ) <- 1500)");
}

TEST(JetSql, BooleansReadAsInJet) {
    EXPECT_EQ(condition("[Aktiv Süd] = True"), R"((-("Aktiv Süd" <> 0)) = -1 <-)");
    EXPECT_EQ(condition("NOT [aktiv süd] OR [Aktiv Süd] = No"),
              R"(NOT (-("Aktiv Süd" <> 0)) OR (-("Aktiv Süd" <> 0)) = 0 <-)");
}

TEST(JetSql, LikeAndAmpersandAreTranslated) {
    EXPECT_EQ(condition("VarRecipe LIKE 'a*' AND VarRecipe Not Like 'b' & '*'"),
              R"("VarRecipe" MATCH ?1 AND "VarRecipe" Not MATCH ?2 || ?3 <- a* b *)");
}

TEST(JetSql, ADeleteLosesItsStar) {
    EXPECT_EQ(translated("DELETE * FROM TrcpRecipeMember WHERE ParentID = 7"),
              R"(DELETE FROM TrcpRecipeMember WHERE "ParentID" = 7)");
    EXPECT_EQ(translated("delete from TrcpRecipeMember"), "delete from TrcpRecipeMember");
    EXPECT_EQ(translated("DELETE * FROM [T] WHERE VarRecipe = \"it's\""),
              R"(DELETE FROM "T" WHERE "VarRecipe" = 'it''s')");
}

TEST(JetSql, AnUpdateAssignsToTheColumnItself) {
    EXPECT_EQ(translated("UPDATE T SET [Aktiv Süd] = True WHERE [Aktiv Süd] = False"),
              R"(UPDATE T SET "Aktiv Süd" = -1 WHERE (-("Aktiv Süd" <> 0)) = 0)");
}

TEST(JetSql, TopBecomesALimit) {
    EXPECT_EQ(translated("SELECT TOP 5 * FROM T ORDER BY A"), "SELECT * FROM T ORDER BY A LIMIT 5");
}

TEST(JetSql, SaysWhatIsWrongAndWhere) {
    EXPECT_EQ(problemOf("SELECT * FROM T WHERE A = 'x"),
              "Command \"SELECT * FROM T WHERE A = 'x\", character 27: the closing quote is missing.");
    EXPECT_EQ(problemOf("SELECT * FROM [T"), "Command \"SELECT * FROM [T\", character 15: \"]\" is missing.");
    EXPECT_EQ(problemOf("SELECT ü FROM T WHERE A = #1#"),
              "Command \"SELECT ü FROM T WHERE A = #1#\", character 27: unexpected \"#\".");
    EXPECT_EQ(problemOf("DROP TABLE TrcpRecipe"), "\"DROP\" is not a command; SELECT, DELETE, UPDATE or INSERT is.");
    EXPECT_EQ(problemOf("PRAGMA synchronous=OFF"), "\"PRAGMA\" is not a command; SELECT, DELETE, UPDATE or INSERT is.");
    EXPECT_EQ(problemOf("DELETE FROM T; DELETE FROM U"), "Only one command can be carried out at a time.");
    EXPECT_EQ(problemOf(" ; "), "Command text was not set.");
    EXPECT_EQ(problemOf("SELECT * FROM T WHERE A = 1x"), "no error");
    EXPECT_THROW((void)condition("A = 1x"), automation::Error);
}

TEST(ColumnType, FollowsTheDeclaredType) {
    const auto describe = [](std::string_view declared) {
        const ado::Column column = columnOfType("C", declared);
        return std::to_string(column.type) + ":" + std::to_string(column.definedSize);
    };
    EXPECT_EQ(describe("INTEGER"), "3:4");
    EXPECT_EQ(describe("integer"), "3:4");
    EXPECT_EQ(describe("SMALLINT"), "2:2");
    EXPECT_EQ(describe("DOUBLE"), "5:8");
    EXPECT_EQ(describe("DOUBLE PRECISION"), "5:8");
    EXPECT_EQ(describe("BOOLEAN"), "11:2");
    EXPECT_EQ(describe("VARCHAR(40)"), "202:40");
    EXPECT_EQ(describe("VARCHAR( 40 )"), "202:40");
    EXPECT_EQ(describe("VARCHAR"), "202:255");
    EXPECT_EQ(describe("LONGTEXT"), "203:0");
    EXPECT_EQ(describe("TEXT"), "203:0");
    EXPECT_EQ(describe(""), "203:0");
    EXPECT_EQ(describe("BLOB"), "203:0");
}

}  // namespace

}  // namespace hx::sqlite
