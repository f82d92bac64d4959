// SPDX-License-Identifier: MIT

// Whatever is changed, all that others rely on stays right: rows, indexes, counts and free pages.
#include <gtest/gtest.h>

#include "random_changes.h"
#include "samples.h"

namespace hx::jet {

namespace {

class Changes : public testing::TestWithParam<std::string> {};

TEST_P(Changes, LeaveEveryIndexRight) {
    const Sample sample(GetParam());
    {
        Opened opened(sample.path());
        EXPECT_EQ(damagesOf(*opened), std::vector<std::string>());
        const auto figures = RandomChanges(*opened, 11).run(600);
        EXPECT_GT(figures.inserted, 50);
        EXPECT_GT(figures.updated, 50);
        EXPECT_GT(figures.removed, 20);
        EXPECT_EQ(damagesOf(*opened), std::vector<std::string>());
    }
    Opened again(sample.path());
    EXPECT_EQ(damagesOf(*again), std::vector<std::string>());
}

TEST_P(Changes, ThatDoNotFitIntoMemoryLeaveEveryIndexRight) {
    const Sample sample(GetParam());
    {
        Opened opened(sample.path());
        opened->pages().keepWriting(24);
        (void)RandomChanges(*opened, 12).run(600);
        EXPECT_EQ(damagesOf(*opened), std::vector<std::string>());
    }
    Opened again(sample.path());
    EXPECT_EQ(damagesOf(*again), std::vector<std::string>());
}

TEST_P(Changes, ThatDoNotFitIntoMemoryAndAreTakenBackLeaveNoTrace) {
    const Sample sample(GetParam());
    const std::string before = sample.bytes();
    {
        Opened opened(sample.path());
        opened->pages().keepWriting(24);
        opened->pages().beginWrite();
        Table& table = *opened->table("TrcpRecipeMember");
        for (int i = 0; i < 3000; ++i) (void)table.insert({});
        opened->pages().rollback();
    }
    EXPECT_TRUE(sample.bytes() == before);
}

TEST_P(Changes, ThatAreTakenBackLeaveNoTrace) {
    const Sample sample(GetParam());
    const std::string before = sample.bytes();
    {
        Opened opened(sample.path());
        opened->pages().beginWrite();
        Table& table = *opened->table("TrcpRecipeMember");
        for (int i = 0; i < 300; ++i) (void)table.insert({});
        opened->pages().rollback();
    }
    EXPECT_TRUE(sample.bytes() == before);
}

INSTANTIATE_TEST_SUITE_P(Sample, Changes, testing::Values("brauerei.hxs", "leer.hxs", "sonderlich.hxs"));

}  // namespace

}  // namespace hx::jet
