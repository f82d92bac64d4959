// SPDX-License-Identifier: MIT
#include "resources/help.h"

#include <fstream>
#include <gtest/gtest.h>
#include <map>

#include "adapters/headless/host.h"
#include "support/memory_provider.h"

namespace hx::resources {
namespace {

class HelpTest : public ::testing::Test {
  protected:
    static headless::HostOptions windows() {
        headless::HostOptions options;
        options.separator = '\\';
        return options;
    }

    support::MemoryProvider database;
    headless::Host host{database, windows()};
    Help help{host.services()};
};

TEST_F(HelpTest, LiesInTheSharedFolder) {
    host.registry.writeString("SOFTWARE\\Tarnwell", "Common", "C:\\Shared");
    help.SetHelpFile();
    EXPECT_EQ(help.file(), "C:\\Shared\\helpfiles\\Rezeptsystem.chm");
}

TEST_F(HelpTest, HasAPathThatBeginsWithTheSeparatorWithoutASharedFolder) {
    help.SetHelpFile();
    EXPECT_EQ(help.file(), "\\helpfiles\\Rezeptsystem.chm");
}

TEST_F(HelpTest, OpensItsFileAtAContextForAWindow) {
    host.registry.writeString("SOFTWARE\\Tarnwell", "Common", "C:\\Shared");
    help.SetHelpFile();
    help.ShowHelp(7, 100020);
    ASSERT_EQ(host.record.help.size(), 1U);
    EXPECT_EQ(host.record.help[0].owner, 7);
    EXPECT_EQ(host.record.help[0].file, "C:\\Shared\\helpfiles\\Rezeptsystem.chm");
    EXPECT_EQ(host.record.help[0].context, 100020);
    EXPECT_TRUE(host.record.messages.empty());
}

TEST_F(HelpTest, ClosesAllItsWindows) {
    help.CloseHelp();
    EXPECT_EQ(host.record.helpCloses, 1);
    EXPECT_TRUE(host.record.help.empty());
}

// The numbers that the help file of a language is made with.
std::map<std::string, std::int32_t> numbersIn(const std::string& project) {
    std::ifstream file(project);
    std::map<std::string, std::int32_t> numbers;
    for (std::string word, name; file >> word;) {
        if (word == "#define" && file >> name) file >> numbers[name];
    }
    return numbers;
}

TEST(Help, KnowsTheTopicsByTheNumbersThatBothHelpFilesAreMadeWith) {
    using namespace help_context;
    const std::map<std::string, std::int32_t> known = {{"recipes", root},
                                                       {"recipe", recipe},
                                                       {"sub_recipes", subRecipes},
                                                       {"recipe_dialog", recipeDialog},
                                                       {"sub_recipe_dialog", subRecipeDialog},
                                                       {"variable_selection", itemsDialog},
                                                       {"options", configurationDialog},
                                                       {"grid", grid},
                                                       {"keys", keys},
                                                       {"overview", overview},
                                                       {"menus", menus},
                                                       {"report", report},
                                                       {"settings", settings},
                                                       {"messages", messages},
                                                       {"history", history},
                                                       {"find", find},
                                                       {"variables", variables}};
    EXPECT_EQ(known, numbersIn(HX_HELP_FOLDER "/de/Rezeptsystem.hhp"));
    EXPECT_EQ(known, numbersIn(HX_HELP_FOLDER "/en/Rezeptsystem.hhp"));
}

TEST(Help, JoinsWithTheSeparatorOfTheHost) {
    support::MemoryProvider database;
    headless::Host host(database);
    host.registry.writeString("SOFTWARE\\Tarnwell", "Common", "/opt/shared");
    Help help(host.services());
    help.SetHelpFile();
    EXPECT_EQ(help.file(), "/opt/shared/helpfiles/Rezeptsystem.chm");
}

}  // namespace
}  // namespace hx::resources
