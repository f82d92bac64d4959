// SPDX-License-Identifier: MIT
// Pipes and full disks.
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "bad_input.h"

namespace hx::cli {

namespace {

class BadDevice : public BadInput {};

TEST_F(BadDevice, APipeInTheWayStays) {
    const std::string pipe = folder_.file("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    expectTaken(pipe);
    EXPECT_EQ(filesInFolder().size(), 4U);
}

TEST_F(BadDevice, APipeIsNoListOfVariables) {
    const std::string pipe = folder_.file("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(hxrecipe({"variables", "import", file_.c_str(), pipe.c_str()}).problems,
              "hxrecipe: " + pipe + " is not a file\n");
    EXPECT_EQ(hxrecipe({"variables", "import", file_.c_str(), "/dev/null"}).problems,
              "hxrecipe: /dev/null is not a file\n");
}

TEST_F(BadDevice, ResultsThatCannotBeWrittenAreAFailure) {
    for (const Use& use : uses(file_)) {
        std::ofstream full("/dev/full");
        std::ostringstream problems;
        std::vector<const char*> arguments = use.arguments;
        arguments.insert(arguments.begin(), "hxrecipe");
        const int status = run(static_cast<int>(arguments.size()), arguments.data(), {full, problems});
        EXPECT_EQ(status, use.failure) << testing::PrintToString(use.arguments);
        EXPECT_EQ(problems.str(), "hxrecipe: The results cannot be written.\n");
    }
}

TEST_F(BadDevice, DiffReadsAPipeAsAnExport) {
    const std::string pipe = folder_.file("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const std::string text = contents(export_);
    // A writer of its own, as a shell starts one.
    const pid_t writer = fork();
    if (writer == 0) {
        std::ofstream(pipe) << text;
        _exit(0);
    }
    EXPECT_EQ(hxrecipe({"diff", file_.c_str(), pipe.c_str()}).results, "No differences.\n");
    waitpid(writer, nullptr, 0);
}

/// No file becomes longer than this, as on a disk that is full.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        (void)std::signal(SIGXFSZ, handler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    void (*handler_)(int);
    rlimit before_{};
};

TEST_F(BadDevice, AFullDiskLeavesAllFilesAsTheyWere) {
    std::string many = "Name;Type\n";
    std::string added;
    for (int i = 0; i < 2000; ++i) {
        many += "Variable" + std::to_string(i) + ";INT\n";
        added += (i == 0 ? "{\"Name\": \"R" : ", {\"Name\": \"R") + std::to_string(i) + "\"}";
    }
    const std::string list = write("many.csv", many);
    const std::string in = write("many.json", recipes(added));
    const std::string large = folder_.file("large.hxs");
    ASSERT_EQ(hxrecipe({"new", large.c_str()}).status, 0);
    ASSERT_EQ(hxrecipe({"import", large.c_str(), in.c_str()}).status, 0);
    const std::string before = contents(file_);
    const auto files = filesInFolder().size();
    const FileSizeLimit limit(before.size());
    const std::string made = folder_.file("made");
    for (const auto& [arguments, file] :
         {std::pair{std::vector<const char*>{"import", file_.c_str(), in.c_str()}, file_},
          {{"variables", "import", file_.c_str(), list.c_str()}, file_},
          {{"export", large.c_str(), made.c_str()}, made},
          {{"generate", "--recipes", "5000", "--members", "5000", "--big", "0", made.c_str()}, made}}) {
        const Result result = hxrecipe(arguments);
        EXPECT_EQ(result.status, 1) << testing::PrintToString(arguments);
        EXPECT_EQ(result.results, "");
        EXPECT_NE(result.problems.find("'" + file), std::string::npos) << result.problems;
        EXPECT_EQ(result.problems.find(", line"), std::string::npos) << result.problems;
    }
    EXPECT_TRUE(contents(file_) == before);
    EXPECT_EQ(filesInFolder().size(), files);
}

}  // namespace

}  // namespace hx::cli
