// SPDX-License-Identifier: MIT
#include "automation/variant.h"

#include "support/memory_shortage.h"

namespace hx::automation {

namespace {

TEST(VariantTest, ACopyThatGetsNoMemoryIsAnErrorAndNoMore) {
    const Variant text(std::string(100, 'x'));
    EXPECT_EQ(support::refuseEachBlock([&] { const Variant copy(text); }), 1);
}

TEST(VariantTest, AnAssignmentThatGetsNoMemoryLeavesTheOldValue) {
    const Variant text(std::string(100, 'x'));
    Variant other(7);
    {
        const support::MemoryShortage shortage(1);
        EXPECT_THROW(other = text, std::bad_alloc);
    }
    EXPECT_EQ(other, Variant(7));
}

}  // namespace

}  // namespace hx::automation
