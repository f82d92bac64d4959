#include "resources/help.h"

#include <gtest/gtest.h>

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
