// SPDX-License-Identifier: MIT
#include "adapters/windows/html_help.h"

#include <gtest/gtest.h>

namespace hx::windows {
namespace {

TEST(HtmlHelpTest, AFileThatIsMissingShowsNothing) {
    HtmlHelp help;
    help.closeAll();
    EXPECT_NO_THROW(help.showContext(0, "C:\\nowhere\\Rezeptsystem.chm", 100001));
    EXPECT_NO_THROW(help.showContext(0, "C:\\nirgendwo\\\u65E5\u672C.chm", 100001));
    EXPECT_NO_THROW(help.closeAll());
}

}  // namespace
}  // namespace hx::windows
