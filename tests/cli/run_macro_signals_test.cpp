// SPDX-License-Identifier: MIT
#include <atomic>
#include <csignal>
#include <thread>
#include <unistd.h>

#include "run_macro_text.h"

namespace hx::cli {

namespace {

class RunMacroUnderSignals : public MacroTextTest {};

TEST_F(RunMacroUnderSignals, EndsInOrder) {
    for (const int signal : {SIGINT, SIGTERM}) {
        // The macro says by a file that it is running: until then the signal would end the tests.
        const std::string begun = folder_.file("begun.txt");
        std::atomic<bool> ended = false;
        std::thread other([&] {
            while (!ended && !std::filesystem::exists(begun)) std::this_thread::sleep_for(std::chrono::milliseconds(5));
            if (!ended) kill(getpid(), signal);
        });
        const Result result = macro(std::string(newRecipe) + R"(studio.NewProject("$P") newRecipe("Cola")
            io.open("begun.txt", "w"):close()
            while true do pcall(newRecipe) end)");
        ended = true;
        other.join();
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.problems, testing::StartsWith("hxrecipe: The macro was stopped\nstack traceback:\n"));
        EXPECT_EQ(query(file_, "SELECT Name FROM TrcpRecipe WHERE ID = 1"), "Cola");
        EXPECT_EQ(printed("print('again')"), "again\n");
        std::filesystem::remove(file_);
        std::filesystem::remove(begun);
    }
}

}  // namespace

}  // namespace hx::cli
