// SPDX-License-Identifier: MIT

// How much of the file a connection keeps in memory.
#include <gtest/gtest.h>

#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/writes.h"
#include "support/temporary_folder.h"

namespace hx::sqlite {
namespace {

struct Cache : testing::Test {
    Cache() { createProject(path); }
    support::TemporaryFolder folder;
    std::string path = folder.file("plant.hxs");
};

TEST_F(Cache, IsLargeDuringATransactionOnly) {
    Writes writes(path);
    const auto kibibytes = [&] { return -writes.database().number("PRAGMA cache_size"); };
    const std::int64_t small = kibibytes();
    writes.begin();
    EXPECT_GE(kibibytes(), 8 * small);
    writes.commit();
    EXPECT_EQ(kibibytes(), small);
    writes.begin();
    EXPECT_GE(kibibytes(), 8 * small);
    writes.rollback();
    EXPECT_EQ(kibibytes(), small);
}

}  // namespace
}  // namespace hx::sqlite
