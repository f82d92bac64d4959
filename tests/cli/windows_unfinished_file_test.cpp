// SPDX-License-Identifier: MIT
#include <fstream>
#include <gtest/gtest.h>
#include <windows.h>

#include "cli/unfinished_file.h"
#include "support/temporary_folder.h"

namespace hx::cli {
namespace {

namespace fs = std::filesystem;

/// A console of the test's own, where Ctrl+C is pressed and does not end the program.
class ConsoleTest : public testing::Test {
  protected:
    ConsoleTest() {
        FreeConsole();
        EXPECT_TRUE(AllocConsole());
        SetConsoleCtrlHandler(goOn, TRUE);
        ResetEvent(heard);
        for (const char* name : {"plant.hxs~", "plant.hxs~-journal"}) std::ofstream(folder.file(name)) << "half";
    }
    ~ConsoleTest() override {
        SetConsoleCtrlHandler(goOn, FALSE);
        FreeConsole();
    }

    // Handlers are asked in the opposite order of that in which they came: this one is the last.
    static BOOL WINAPI goOn(DWORD) {
        SetEvent(heard);
        return TRUE;
    }
    static void press() {
        ASSERT_TRUE(GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0));
        ASSERT_EQ(WaitForSingleObject(heard, INFINITE), WAIT_OBJECT_0);
    }

    static inline const HANDLE heard = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    support::TemporaryFolder folder;
};

TEST_F(ConsoleTest, AnInterruptionTakesTheUnfinishedFileAway) {
    const UnfinishedFile unfinished(fs::path(folder.file("plant.hxs~")));
    press();
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(ConsoleTest, AnInterruptionLeavesWhatIsFinished) {
    { const UnfinishedFile unfinished(fs::path(folder.file("plant.hxs~"))); }
    press();
    EXPECT_TRUE(fs::exists(folder.file("plant.hxs~")));
    EXPECT_TRUE(fs::exists(folder.file("plant.hxs~-journal")));
}

}  // namespace
}  // namespace hx::cli
