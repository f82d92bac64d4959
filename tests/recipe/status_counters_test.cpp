// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <limits>

#include "recipe/mhxrcp_hirarch_func.h"

namespace hx::recipe {
namespace {

using Mode = StatusCounters::Mode;
constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t smallest = std::numeric_limits<std::int32_t>::min();

struct Counters : testing::Test {
    Counters() {
        texts.AddResource(421, {"Func:", "Func:"});
        texts.AddResource(422, {"Rezepte:", "Recipes"});
        texts.AddResource(423, {"Rezeptelemente", "Recipe Members"});
    }
    void update(const std::string& function, Mode mode, std::int32_t recipes, std::int32_t members) {
        counters.UpdateStatusCounters(bar, texts, function, mode, recipes, members);
    }
    std::pair<std::int32_t, std::int32_t> counts() {
        std::int32_t recipes = -7, members = -7;
        counters.UpdateStatusCounters(bar, texts, "", Mode::get, recipes, members);
        return {recipes, members};
    }

    resources::ResourceTable texts;
    forms::StatusBar bar{"sb", 3};
    StatusCounters counters;
};

TEST_F(Counters, ASumThatCannotBeCountedLeavesBothAsTheyWere) {
    update("", Mode::set, smallest + 1, largest);
    update("", Mode::add, -1, 0);
    EXPECT_EQ(counts(), std::pair(smallest, largest));
    try {
        update("", Mode::add, 1, 1);
        FAIL() << "an overflow";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.description(), "Overflow");
    }
    EXPECT_EQ(counts(), std::pair(smallest, largest));
}

TEST_F(Counters, StartAtNothing) { EXPECT_EQ(counts(), std::pair(0, 0)); }

TEST_F(Counters, SetTakesBothCountsAndShowsThem) {
    update("Statistik", Mode::set, 41, 612);
    EXPECT_EQ(bar.panel(1).text(), "Func:Statistik");
    EXPECT_EQ(bar.panel(2).text(), "Rezepte:41");
    EXPECT_EQ(bar.panel(3).text(), "Rezeptelemente612");
    EXPECT_EQ(counts(), std::pair(41, 612));
}

TEST_F(Counters, AddAddsToWhatWasCounted) {
    update("", Mode::set, 10, 100);
    update("", Mode::add, 2, -50);
    EXPECT_EQ(counts(), std::pair(12, 50));
    EXPECT_EQ(bar.panel(2).text(), "Rezepte:12");
    EXPECT_EQ(bar.panel(3).text(), "Rezeptelemente50");
}

TEST_F(Counters, ResetForgetsWhateverIsGiven) {
    update("", Mode::set, 10, 100);
    update("", Mode::reset, 5, 6);
    EXPECT_EQ(counts(), std::pair(0, 0));
    EXPECT_EQ(bar.panel(1).text(), "Func:");
    EXPECT_EQ(bar.panel(2).text(), "Rezepte:0");
}

TEST_F(Counters, AnyOtherModeLeavesTheCountsAsTheyAre) {
    update("", Mode::set, 10, 100);
    update("x", static_cast<Mode>(9), 5, 6);
    EXPECT_EQ(counts(), std::pair(10, 100));
}

TEST_F(Counters, ASumBeyond32BitsIsAnErrorAndChangesNothing) {
    const auto overflows = [this](std::int32_t recipes, std::int32_t members) {
        try {
            update("", Mode::add, recipes, members);
        } catch (const automation::Error& error) {
            return error.number() == automation::errOverflow;
        }
        return false;
    };
    update("", Mode::set, largest, smallest);
    EXPECT_TRUE(overflows(1, 0));
    EXPECT_TRUE(overflows(0, -1));
    EXPECT_EQ(counts(), std::pair(largest, smallest));
    EXPECT_FALSE(overflows(0, 1));
    EXPECT_EQ(counts(), std::pair(largest, smallest + 1));
}

TEST_F(Counters, APanelIsWrittenOnlyWhenItsTextDiffers) {
    update("Statistik", Mode::set, 1, 2);
    int writes = 0;
    for (std::int32_t i = 1; i <= 3; ++i) bar.panel(i).changed.connect([&writes] { ++writes; });
    update("Statistik", Mode::set, 1, 2);
    EXPECT_EQ(writes, 0);
    update("Statistik", Mode::set, 1, 3);
    EXPECT_EQ(writes, 1);
    EXPECT_EQ(bar.panel(3).text(), "Rezeptelemente3");
}

}  // namespace
}  // namespace hx::recipe
