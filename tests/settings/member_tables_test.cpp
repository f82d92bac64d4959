// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "adapters/headless/memory_ini_file.h"
#include "settings/cinit.h"
#include "settings/item_enumerator.h"
#include "support/table_walker.h"

namespace hx::settings {
namespace {

using automation::Variant;

TEST(MemberTables, OfAnEntryKeepTheirPromises) {
    CInitItem item("Me", Variant("x"), 0);
    EXPECT_EQ(support::walkTables(item), 4);
}

TEST(MemberTables, OfTheEntriesKeepTheirPromises) {
    CInitItems items;
    EXPECT_EQ(support::walkTables(items), 6);
    ItemEnumerator each({});
    EXPECT_EQ(support::walkTables(each), 2);
}

TEST(MemberTables, OfTheStoreKeepTheirPromises) {
    headless::MemoryIniFile files;
    CInit inits(files, {});
    EXPECT_EQ(support::walkTables(inits), 13);
}

}  // namespace
}  // namespace hx::settings
