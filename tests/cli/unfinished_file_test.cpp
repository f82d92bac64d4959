// SPDX-License-Identifier: MIT
#include "cli/unfinished_file.h"

#include <csignal>

#include "run_cli.h"
#include "support/processes.h"

namespace hx::cli {

namespace {

namespace fs = std::filesystem;

constexpr const char* manyMembers = "100000000";  // more than a test waits for

class UnfinishedFileTest : public CliTest {
  protected:
    /// The file beside `path` that something is being written to.
    [[nodiscard]] bool isBeingWritten(const std::string& path) const {
        const std::string name = fs::path(path).filename();
        for (const std::string& file : filesInFolder()) {
            std::error_code gone;
            const bool beside = file.starts_with(name + ".") && file.ends_with(".new");
            if (beside && fs::file_size(folder_.file(file), gone) > 0 && !gone) return true;
        }
        return false;
    }

    /// Runs hxrecipe in a process of its own, which gets Ctrl+C while it writes the file beside `path`. Whether it
    /// came before the end.
    [[nodiscard]] bool interrupted(const std::vector<const char*>& arguments, const std::string& path) const {
        const pid_t process = fork();
        if (process == 0) _exit(hxrecipe(arguments).status);
        int status = 0;
        while (!isBeingWritten(path)) {
            if (waitpid(process, &status, WNOHANG) == process) return false;
        }
        kill(process, SIGINT);
        waitpid(process, &status, 0);
        // A shell says 130 of both.
        return WIFSIGNALED(status) ? WTERMSIG(status) == SIGINT : WEXITSTATUS(status) == cancelled;
    }
};

TEST_F(UnfinishedFileTest, IsTakenAwayBeforeASignalEndsTheProgram) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const std::string path = write("draft", "half");
        (void)write("draft-journal", "half");
        (void)write("other", "mine");
        const pid_t process = fork();
        if (process == 0) {
            const UnfinishedFile unfinished(path);
            raise(signal);
            _exit(EXIT_SUCCESS);
        }
        int status = 0;
        waitpid(process, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << signal;
        EXPECT_EQ(filesInFolder(), std::vector<std::string>{"other"}) << signal;
    }
}

TEST_F(UnfinishedFileTest, StaysWithASignalThatTheCallerHasShutOff) {
    const std::string path = write("draft", "half");
    const auto before = std::signal(SIGHUP, SIG_IGN);
    {
        const UnfinishedFile unfinished(path);
        raise(SIGHUP);
    }
    EXPECT_EQ(std::signal(SIGHUP, before), SIG_IGN);
    EXPECT_TRUE(fs::exists(path));
}

TEST_F(UnfinishedFileTest, LeavesSignalsAsTheyWere) {
    { const UnfinishedFile unfinished(folder_.file("draft")); }
    EXPECT_EQ(std::signal(SIGINT, SIG_DFL), SIG_DFL);
}

TEST_F(UnfinishedFileTest, CtrlCLeavesNothingOfAProjectThatIsBeingGenerated) {
    EXPECT_TRUE(
        interrupted({"generate", "--recipes", "1", "--members", manyMembers, "--big", "0", file_.c_str()}, file_));
    EXPECT_EQ(filesInFolder(), std::vector<std::string>());
}

TEST_F(UnfinishedFileTest, CtrlCDuringAnExportLeavesTheOldOne) {
    makeProject(file_, "INSERT INTO TrcpRecipe (Name, Comment) VALUES ('Cola', '')");
    const std::string out = folder_.file("out.json");
    ASSERT_EQ(hxrecipe({"export", file_.c_str(), out.c_str()}).status, 0);
    const std::string old = contents(out);
    sqlite::Database(file_).execute("UPDATE TrcpRecipe SET Comment = hex(zeroblob(10000000))");
    // An export can end before it gets the signal.
    while (!interrupted({"export", file_.c_str(), out.c_str()}, out)) write("out.json", old);
    EXPECT_EQ(contents(out), old);
    EXPECT_EQ(filesInFolder().size(), 2U);
}

}  // namespace

}  // namespace hx::cli
