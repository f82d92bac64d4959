// SPDX-License-Identifier: MIT

// Whatever is changed, all that others rely on stays right: rows, indexes, counts and free pages.
#include <filesystem>
#include <gtest/gtest.h>

#include "adapters/sqlite/provider.h"
#include "ado/types.h"
#include "random_changes.h"
#include "samples.h"
#include "support/error_of.h"
#include "support/jet_judge.h"

namespace hx::jet {

namespace {

class Changes : public testing::TestWithParam<std::string> {
  protected:
    /// Nothing is damaged, and others read the same.
    static void requireWhole(const Sample& sample) {
        {
            Opened again(sample.path());
            EXPECT_EQ(damagesOf(*again), std::vector<std::string>());
        }
        if (GetParam() == "sonderlich.hxs") return;  // mdb-export shows a row of it that its maker has deleted
        sqlite::Provider provider;
        EXPECT_EQ(support::differenceFromMdbExport(provider, sample.path()), "");
    }
};

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
    requireWhole(sample);
}

TEST_P(Changes, ThatDoNotFitIntoMemoryLeaveEveryIndexRight) {
    const Sample sample(GetParam());
    {
        Opened opened(sample.path());
        opened->pages().keepWriting(24);
        (void)RandomChanges(*opened, 12).run(600);
        EXPECT_EQ(damagesOf(*opened), std::vector<std::string>());
    }
    requireWhole(sample);
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

// The rest of the file is a hole, which takes no room on the disk.
TEST(FullProject, RefusesAnotherPageAndStaysAsItIs) {
    constexpr std::uint64_t most = std::uint64_t{2} * 1024 * 1024 * 1024;
    const Sample sample("brauerei.hxs");
    std::filesystem::resize_file(sample.path(), most - 8 * pageSize);
    Opened opened(sample.path());
    const auto names = textsOf(*opened, "TrcpRecipe", "Name");
    opened->pages().beginWrite();
    (void)opened->table("TrcpRecipeMember")->insert({});
    const auto error = support::errorOf([&] {
        for (int i = 0; i < 100; ++i) (void)opened->pages().append();
    });
    opened->pages().rollback();
    EXPECT_EQ(error.number(), ado::dbErrUnspecified);
    EXPECT_NE(error.description().find("is full: a Jet database holds two gigabytes"), std::string::npos)
        << error.description();
    EXPECT_EQ(std::filesystem::file_size(sample.path()), most - 8 * pageSize);
    EXPECT_EQ(textsOf(*opened, "TrcpRecipe", "Name"), names);
}

INSTANTIATE_TEST_SUITE_P(Sample, Changes, testing::Values("brauerei.hxs", "leer.hxs", "sonderlich.hxs"));

}  // namespace

}  // namespace hx::jet
