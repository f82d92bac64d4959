// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adapters/headless/host.h"
#include "automation/error.h"
#include "support/memory_provider.h"

namespace hx::headless {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PopUpTest : public ::testing::Test {
  protected:
    void SetUp() override {
        forms::Band& main = bar->addBand("mnuMain");
        bar->setMainBand("mnuMain");
        main.add("mnuMore", forms::ToolKind::menu).setSubBand("more");
        main.add("mnuShowEditor", forms::ToolKind::command);
        forms::Band& recipe = bar->addBand("mnuRecipe");
        recipe.add("mnuRecipeNew", forms::ToolKind::command).setCaption("&Neu");
        recipe.add("mnuRecipeEdit", forms::ToolKind::command).setEnabled(false);
        recipe.add("mnuRecipeDelete", forms::ToolKind::command).setVisible(false);
        recipe.add("mnuMore", forms::ToolKind::menu).setSubBand("more");
        bar->addBand("more").add("mnuReport", forms::ToolKind::command);
        bar->toolClickEvent.connect([this](forms::Tool& tool) { clicked.push_back(tool.name()); });
        bar->bandOpenEvent.connect([this](forms::Band& band, bool& cancel) {
            opened.push_back(band.name());
            cancel = band.name() == refused;
        });
    }
    forms::Band& band() { return bar->band(automation::Variant("mnuRecipe")); }
    void choose(const std::string& tool) {
        host.script.onPopUp = [tool](forms::Band&) { return tool; };
        host.screen.popUp(*bar, band());
    }

    support::MemoryProvider database;
    Host host{database};
    std::shared_ptr<forms::Bar> bar = std::make_shared<forms::Bar>("abr");
    std::vector<std::string> clicked, opened;
    std::string refused;
};

TEST_F(PopUpTest, ClosesWithoutAScriptAndRecordsWhatWasShown) {
    host.screen.popUp(*bar, band());
    EXPECT_THAT(clicked, IsEmpty());
    ASSERT_EQ(host.record.popUps.size(), 1U);
    const forms::PopUp& shown = host.record.popUps[0];
    EXPECT_EQ(shown.band, "mnuRecipe");
    EXPECT_FALSE(shown.refused);
    EXPECT_EQ(shown.chosen, "");
    ASSERT_EQ(shown.entries.size(), 4U) << "invisible tools are not shown, the main band's commands close the menu";
    EXPECT_EQ(shown.entries[0].tool, "mnuRecipeNew");
    EXPECT_EQ(shown.entries[0].caption, "&Neu");
    EXPECT_TRUE(shown.entries[0].enabled);
    EXPECT_EQ(shown.entries[1].tool, "mnuRecipeEdit");
    EXPECT_FALSE(shown.entries[1].enabled);
    EXPECT_EQ(shown.entries[2].tool, "mnuMore");
    EXPECT_EQ(shown.entries[3].tool, "mnuShowEditor");
}

TEST_F(PopUpTest, ClicksTheToolThatTheScriptChooses) {
    choose("MNURecipeNew");
    EXPECT_THAT(clicked, ElementsAre("mnuRecipeNew"));
    EXPECT_EQ(host.record.popUps.at(0).chosen, "MNURecipeNew");
    choose("mnuShowEditor");
    EXPECT_THAT(clicked, ElementsAre("mnuRecipeNew", "mnuShowEditor"));
}

TEST_F(PopUpTest, HandsTheClickOnADisabledToolToTheBar) {
    choose("mnuRecipeEdit");
    EXPECT_THAT(clicked, ElementsAre("mnuRecipeEdit"));
}

TEST_F(PopUpTest, ReachesAToolInASubMenu) {
    int opening = 0;
    bar->menuOpeningEvent.connect([&](forms::Tool& tool) { opening += tool.name() == "mnuMore" ? 1 : 0; });
    choose("mnuReport");
    EXPECT_THAT(clicked, ElementsAre("mnuReport"));
    EXPECT_THAT(opened, ElementsAre("mnuRecipe", "more"));
    EXPECT_EQ(opening, 1);
}

TEST_F(PopUpTest, DoesNotReachAToolInADisabledOrRefusedSubMenu) {
    refused = "more";
    EXPECT_THROW(choose("mnuReport"), automation::Error);
    refused.clear();
    band().tool(automation::Variant("mnuMore")).setEnabled(false);
    EXPECT_THROW(choose("mnuReport"), automation::Error);
    EXPECT_THAT(clicked, IsEmpty());
}

TEST_F(PopUpTest, RefusesAToolThatIsNotShown) {
    try {
        choose("mnuRecipeDelete");
        FAIL() << "an invisible tool was clicked";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.number(), automation::errBadIndex);
        EXPECT_EQ(error.description(), "The menu of the band \"mnuRecipe\" does not show a tool \"mnuRecipeDelete\"");
    }
    EXPECT_THAT(clicked, IsEmpty());
}

TEST_F(PopUpTest, DoesNotShowABandWhoseOpeningIsCancelled) {
    refused = "mnuRecipe";
    bool asked = false;
    host.script.onPopUp = [&](forms::Band&) {
        asked = true;
        return std::string("mnuRecipeNew");
    };
    host.screen.popUp(*bar, band());
    EXPECT_FALSE(asked);
    EXPECT_THAT(clicked, IsEmpty());
    ASSERT_EQ(host.record.popUps.size(), 1U);
    EXPECT_TRUE(host.record.popUps[0].refused);
    EXPECT_THAT(host.record.popUps[0].entries, IsEmpty());
}

}  // namespace
}  // namespace hx::headless
