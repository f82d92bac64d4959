// SPDX-License-Identifier: MIT
#include "forms/tab_strip.h"

#include <gtest/gtest.h>

#include "recorder.h"
#include "support/table_walker.h"

namespace hx::forms {
namespace {

using automation::errBadIndex;
using automation::Variant;
using support::errorNumber;

TEST(TabStrip, ShowsItsFirstPageAtFirst) {
    const TabStrip strip("tab", 3);
    EXPECT_EQ(strip.tabs(), 3);
    EXPECT_EQ(strip.tab(), 0);
    EXPECT_EQ(strip.page(0).left(), 0);
    EXPECT_EQ(strip.page(1).left(), -75000);
    EXPECT_EQ(strip.page(2).left(), -75000);
}

TEST(TabStrip, MovesThePagesThatAreNotShownOutOfSight) {
    TabStrip strip("tab", 3);
    strip.page(0).setLeft(60);
    strip.page(2).setLeft(-75000 + 60);
    Counter<> clicks(strip.clickEvent);
    strip.setTab(2);
    EXPECT_EQ(strip.page(0).left(), -75000 + 60);
    EXPECT_EQ(strip.page(2).left(), 60);
    strip.setTab(2);
    EXPECT_EQ(clicks.take(), 1);
    strip.setTab(0);
    EXPECT_EQ(strip.page(0).left(), 60);
}

TEST(TabStrip, IsTheContainerOfItsPages) {
    auto strip = std::make_shared<TabStrip>("tab", 2);
    EXPECT_EQ(strip->page(1).get("Container").asObject(), strip);
    EXPECT_EQ(strip->page(1).name(), "tabPage1");
}

TEST(TabStrip, GivesEachPageACaption) {
    TabStrip strip("tab", 2);
    ChangeRecorder properties(strip);
    strip.setTabCaption(1, "Erweitert");
    strip.setTabCaption(1, "Erweitert");
    EXPECT_EQ(strip.tabCaption(1), "Erweitert");
    EXPECT_EQ(strip.tabCaption(0), "");
    EXPECT_EQ(properties.take(), Names{"TabCaption"});
}

TEST(TabStrip, KnowsNoOtherPagesThanItsOwn) {
    TabStrip strip("tab", 2);
    for (const std::int16_t tab : {std::int16_t{-1}, std::int16_t{2}}) {
        EXPECT_EQ(errorNumber([&] { strip.setTab(tab); }), errBadIndex);
        EXPECT_EQ(errorNumber([&] { (void)strip.page(tab); }), errBadIndex);
        EXPECT_EQ(errorNumber([&] { strip.setTabCaption(tab, "x"); }), errBadIndex);
    }
}

TEST(TabStrip, IsReachedByName) {
    auto strip = std::make_shared<TabStrip>("tab", 2);
    const std::vector<Variant> second{1};
    strip->set("TabCaption", Variant("Optionen"), second);
    EXPECT_EQ(strip->get("TabCaption", second), Variant("Optionen"));
    EXPECT_EQ(strip->get("Tabs"), Variant(std::int16_t{2}));
    const auto page = strip->get("Pages", second).asObject();
    EXPECT_EQ(page->get("Caption"), Variant("Optionen"));
    strip.reset();
    EXPECT_EQ(page->get("Container").asObject()->className(), "TabStrip");
}

}  // namespace
}  // namespace hx::forms
