// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_search.h"

#include <gmock/gmock.h>

#include "adapters/qt/text.h"
#include "help/compiled_help.h"

namespace hx::help {
namespace {

using testing::Contains;
using testing::IsEmpty;

class HelpSearchTest : public testing::Test {
  protected:
    const qt::HelpBook book{compiledHelp("de")};
    const qt::HelpSearch search{book};

    [[nodiscard]] std::vector<std::string> find(const char* query) const {
        std::vector<std::string> paths;
        for (const qt::HelpHit& hit : search.find(query)) paths.push_back(qt::fromQt(hit.path));
        return paths;
    }
};

TEST_F(HelpSearchTest, ATopicWithTheWordInItsTitleComesFirst) {
    EXPECT_EQ(find("Tasten").at(0), "/keys.htm");
    EXPECT_EQ(find("meldungen").at(0), "/messages.htm");
    EXPECT_EQ(find("report").at(0), "/report.htm");
}

TEST_F(HelpSearchTest, EveryWordMustBeInTheTopic) {
    EXPECT_THAT(find("normfaktor"), Contains("/recipe_dialog.htm"));
    EXPECT_THAT(find("normfaktor pdf"), IsEmpty());
    EXPECT_EQ(find("pdf vorschau"), (std::vector<std::string>{"/report.htm"}));
}

TEST_F(HelpSearchTest, CaseAndAccentsDoNotMatter) {
    EXPECT_THAT(find("ÜBERBLICK"), Contains("/overview.htm"));
    EXPECT_EQ(find("uberblick"), find("Überblick"));
    EXPECT_EQ(find("loschen"), find("LÖSCHEN"));
}

TEST_F(HelpSearchTest, APartOfAWordIsFoundBehindWholeWords) {
    EXPECT_THAT(find("trigger"), Contains("/recipe_dialog.htm"));
    EXPECT_THAT(find("ladetrig"), Contains("/recipe_dialog.htm"));
}

TEST_F(HelpSearchTest, AnEmptyQueryFindsNothing) {
    EXPECT_THAT(find(""), IsEmpty());
    EXPECT_THAT(find("   "), IsEmpty());
    EXPECT_THAT(find("gibtesnicht"), IsEmpty());
}

TEST_F(HelpSearchTest, AnExcerptShowsTheWordAndItsSurroundings) {
    const auto hits = search.find("Verschlüsselt");
    ASSERT_FALSE(hits.empty());
    EXPECT_TRUE(hits[0].excerpt.contains("verschlüsselt")) << qt::fromQt(hits[0].excerpt);
    EXPECT_LT(hits[0].excerpt.size(), 200);
}

TEST_F(HelpSearchTest, WhatStandsInTagsIsNotFound) { EXPECT_THAT(find("stylesheet"), IsEmpty()); }

}  // namespace
}  // namespace hx::help
