// SPDX-License-Identifier: MIT
#include "history/journal.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <vector>

#include "support/temporary_folder.h"

namespace hx::history {
namespace {

using Records = std::vector<std::string>;

class JournalTest : public testing::Test {
  protected:
    /// The records that are there when the project is opened.
    Records open(const std::string& project = "/plant/a.hxs") {
        Records records;
        journal.reset();
        journal.emplace(folder.path(), project,
                        [&](std::string_view record, const Journal::Place&) { records.emplace_back(record); });
        return records;
    }
    void append(const Records& records) {
        for (const std::string& record : records) EXPECT_TRUE(journal->append(record)) << record;
    }
    [[nodiscard]] std::filesystem::path file() const {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path())) {
            if (entry.path().filename() == "steps") return entry.path();
        }
        return {};
    }

    support::TemporaryFolder folder;
    std::optional<Journal> journal;
};

TEST_F(JournalTest, GivesRecordsBackByTheirPlace) {
    EXPECT_EQ(open(), Records());
    const auto first = journal->append("first");
    const auto second = journal->append(std::string("sec\0ond", 7));
    ASSERT_TRUE(first && second);
    EXPECT_EQ(journal->read(*first), "first");
    EXPECT_EQ(journal->read(*second), std::string("sec\0ond", 7));
    EXPECT_EQ(journal->read({second->at, 3}), std::nullopt);
    EXPECT_EQ(journal->read({5, 5}), std::nullopt);
    EXPECT_EQ(journal->read({std::uint64_t{1} << 60U, 5}), std::nullopt);
}

TEST_F(JournalTest, LeavesNothingWhenItIsClosed) {
    open();
    append({"a"});
    journal->close();
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
    EXPECT_EQ(open(), Records());
}

TEST_F(JournalTest, GoesOnWithWhatACrashLeftOfTheSameProject) {
    open();
    append({"a", "", "c"});
    EXPECT_EQ(open("/plant/b.hxs"), Records());
    EXPECT_EQ(open(), (Records{"a", "", "c"}));
    append({"d"});
    EXPECT_EQ(open(), (Records{"a", "", "c", "d"}));
}

TEST_F(JournalTest, TwoProgramsWithOneProjectHaveOneEach) {
    open();
    append({"a"});
    Records others;
    Journal other(folder.path(), "/plant/a.hxs",
                  [&](std::string_view record, const Journal::Place&) { others.emplace_back(record); });
    EXPECT_EQ(others, Records());
    EXPECT_TRUE(other.append("b"));
    other.close();
    EXPECT_EQ(open(), Records{"a"});
}

TEST_F(JournalTest, WhatWasCutOrOverwrittenEndsIt) {
    open();
    append({"first", "second", "third"});
    journal.reset();
    const auto size = std::filesystem::file_size(file());
    for (std::uintmax_t cut = 1; cut <= 5 + 16; ++cut) {
        std::filesystem::resize_file(file(), size - cut);
        EXPECT_EQ(open(), (Records{"first", "second"})) << cut;
    }
    append({"again"});
    EXPECT_EQ(open(), (Records{"first", "second", "again"}));
    journal.reset();
    std::fstream(file(), std::ios::in | std::ios::out).seekp(21 + 16 + 1).put('X');
    EXPECT_EQ(open(), Records());
}

TEST_F(JournalTest, OfWhatIsNoJournalIsBegunAnew) {
    open();
    append({"a"});
    journal.reset();
    std::ofstream(file(), std::ios::trunc) << "something else";
    EXPECT_EQ(open(), Records());
    append({"b"});
    EXPECT_EQ(open(), Records{"b"});
}

TEST_F(JournalTest, WhereItCannotBeWrittenItIsNotThere) {
    const std::string file = folder.file("file");
    std::ofstream(file) << "x";
    Journal none(file, "/plant/a.hxs", [](std::string_view, const Journal::Place&) { FAIL(); });
    EXPECT_EQ(none.append("a"), std::nullopt);
    none.close();
    EXPECT_TRUE(std::filesystem::exists(file));
}

}  // namespace
}  // namespace hx::history
