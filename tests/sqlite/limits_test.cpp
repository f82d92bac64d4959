// SPDX-License-Identifier: MIT

// What a file can make SQLite do is limited.
#include "adapters/sqlite/database.h"
#include "project_fixture.h"

namespace hx::sqlite {

namespace {

class Limits : public ProjectTest {
  protected:
    std::string problem(const std::string& sql) {
        return errorOf([&] { (void)database_.number(sql); }).description();
    }
    Database database_{path_};
};

constexpr const char* endless = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i FROM n) SELECT count(*) FROM n";

TEST_F(Limits, EndAStatementThatWorksWithoutEnd) {
    database_.limitWork(1'000'000);
    EXPECT_EQ(problem(endless), "The work in the file '" + path_ + "' was ended: it takes too long, or was stopped.");
    for (int i = 0; i < 3; ++i) EXPECT_EQ(database_.number("SELECT 7"), 7);
    EXPECT_NE(errorOf([&] { database_.execute(endless); }).description(), "");
}

TEST_F(Limits, CountTheWorkOfEachRow) {
    database_.limitWork(100'000);
    Statement rows(database_,
                   "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 200000) SELECT i FROM n");
    int count = 0;
    while (rows.step()) ++count;
    EXPECT_EQ(count, 200'000);
}

TEST_F(Limits, MakeNoTextOfAnyLength) {
    EXPECT_EQ(problem("SELECT length(zeroblob(100000000))"), "A value in the file '" + path_ + "' is too long.");
}

TEST_F(Limits, RunNoTriggerOfTheFileAndOpenNoOtherFile) {
    RawFile(path_).run("CREATE TABLE T (A); CREATE TRIGGER Mine AFTER INSERT ON T BEGIN INSERT INTO T VALUES (2); END");
    database_.execute("INSERT INTO T VALUES (1)");
    EXPECT_EQ(database_.number("SELECT count(*) FROM T"), 1);
    EXPECT_NE(errorOf([&] { database_.execute("ATTACH '" + folder_.file("x.db") + "' AS x"); }).description(), "");
}

}  // namespace

}  // namespace hx::sqlite
