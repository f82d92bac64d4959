// SPDX-License-Identifier: MIT
#include "ado/bookmark.h"

#include <gtest/gtest.h>

#include "ado/types.h"
#include "automation/error.h"

namespace hx::ado {

namespace {

using automation::Variant;

TEST(Bookmark, TravelsAsAValue) {
    const Bookmark bookmark(Key{1} << 40);
    EXPECT_EQ(bookmark.toVariant(), Variant(1099511627776.0));
    EXPECT_EQ(Bookmark::fromVariant(bookmark.toVariant()), bookmark);
    EXPECT_TRUE(Bookmark().toVariant().isNull());
    EXPECT_TRUE(Bookmark::fromVariant(Variant()).isNull());
    EXPECT_TRUE(Bookmark::fromVariant(automation::Null{}).isNull());
}

TEST(Bookmark, RefusesAValueThatIsNone) {
    EXPECT_THROW((void)Bookmark::fromVariant(1.5), automation::Error);
    EXPECT_THROW((void)Bookmark::fromVariant(1e300), automation::Error);
    EXPECT_THROW((void)Bookmark::fromVariant("x"), automation::Error);
}

}  // namespace

}  // namespace hx::ado
