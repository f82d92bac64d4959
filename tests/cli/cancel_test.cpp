// SPDX-License-Identifier: MIT
#include <csignal>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "automation/cancelled.h"
#include "cli/progress.h"
#include "project/reader.h"
#include "run_cli.h"

namespace hx::cli {

namespace {

/// Ctrl+C in time: the command waits for the text of a pipe, which comes after the key.
class Cancelling : public CliTest {
  protected:
    Cancelling() { makeProject(file_, "INSERT INTO TrcpRecipe (Name) VALUES ('Cola');"); }

    void cancel(std::vector<const char*> arguments, const std::string& text) {
        const std::string before = contents(file_);
        ASSERT_EQ(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
        std::thread user([&] {
            std::ofstream file(pipe);  // open as soon as the command reads
            kill(getpid(), SIGINT);
            file << text;
        });
        const Result result = hxrecipe(std::move(arguments));
        user.join();
        EXPECT_EQ(result.status, 130);
        EXPECT_EQ(result.results, "");
        EXPECT_EQ(result.problems, "hxrecipe: Cancelled.\n");
        EXPECT_EQ(contents(file_), before);
        EXPECT_EQ(filesInFolder().size(), 2U);
    }
    /// The project as an export, which would add a recipe.
    std::string otherExport() {
        const std::string other = folder_.file("other.hxs"), json = folder_.file("other.json");
        makeProject(other, "INSERT INTO TrcpRecipe (Name) VALUES ('Fanta');");
        EXPECT_EQ(hxrecipe({"export", other.c_str(), json.c_str()}).status, 0);
        const std::string text = contents(json);
        std::filesystem::remove(other);
        std::filesystem::remove(json);
        return text;
    }
    std::string pipe = folder_.file("pipe");
};

TEST_F(Cancelling, AnImportChangesNothing) { cancel({"import", file_.c_str(), pipe.c_str()}, otherExport()); }

TEST_F(Cancelling, AComparisonTellsNothing) { cancel({"diff", file_.c_str(), pipe.c_str()}, otherExport()); }

TEST_F(Cancelling, ReadingAProjectEndsBetweenTwoRows) {
    makeProject(folder_.file("many.hxs"),
                "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000)"
                " INSERT INTO TrcpRecipe (Name) SELECT 'R' || i FROM n;");
    sqlite::Provider provider;
    project::Reader reader(provider, folder_.file("many.hxs"));
    std::ostringstream stream;
    const Output output{stream, stream, false};
    Progress progress(output);
    reader.tell(progress.hearer());
    EXPECT_EQ(reader.recipes().size(), 3000U);
    std::raise(SIGINT);
    EXPECT_THROW((void)reader.recipes(), automation::Cancelled);
}

}  // namespace

}  // namespace hx::cli
