// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

#include "automation/error.h"
#include "hosting/failing_disk.h"
#include "hosting/file_bytes.h"
#include "hosting/file_lock.h"
#include "hosting/files_folder.h"

namespace hx::hosting {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

TEST(ChangingAFile, HandsOverWhatIsThereAndWritesOnlyWhatIsNew) {
    const FilesFolder folder;
    const FailingDisk disk;
    changeFile(
        folder.file("a"), [](std::string_view bytes) { return std::string(bytes) + "1"; }, disk);
    changeFile(
        folder.file("a"), [](std::string_view bytes) { return std::string(bytes) + "2"; }, disk);
    const auto steps = disk.steps().size();
    changeFile(
        folder.file("a"), [](std::string_view bytes) { return std::string(bytes); }, disk);
    EXPECT_EQ(folder.read("a"), "12");
    EXPECT_EQ(disk.steps().size(), steps);
}

TEST(ChangingAFile, WritesNothingWhenTheFileCannotBeRead) {
    const FilesFolder folder;
    fs::create_directory(folder.file("a"));
    EXPECT_THROW(changeFile(folder.file("a"), [](std::string_view) { return std::string("new"); }), automation::Error);
    EXPECT_TRUE(fs::is_directory(folder.file("a")));
    EXPECT_EQ(folder.entries(), 1U);
}

TEST(ChangingAFile, LetsOthersInWhenTheChangeFails) {
    const FilesFolder folder;
    const auto fail = [](std::string_view) -> std::string { throw automation::Error(automation::errFail, "no"); };
    EXPECT_THROW(changeFile(folder.file("a"), fail), automation::Error);
    changeFile(folder.file("a"), [](std::string_view) { return std::string("new"); });
    EXPECT_EQ(folder.read("a"), "new");
}

TEST(ALockedFile, IsRefusedToOthersUntilItIsLetGo) {
    const FilesFolder folder;
    const std::string file = folder.write("a", "old");
    {
        const FileLock lock(file);
        try {
            const FileLock other(file, systemDisk(), std::chrono::milliseconds(0));
            ADD_FAILURE() << "locked twice";
        } catch (const automation::Error& error) {
            EXPECT_EQ(error.description(),
                      "The file '" + file + "' cannot be written: another program does not let go of it.");
        }
    }
    const FileLock other(file, systemDisk(), std::chrono::milliseconds(0));
}

TEST(ALockedFile, IsChangedByOneAfterTheOther) {
    constexpr int writers = 4, changesEach = 25;
    const FilesFolder folder;
    const auto file = folder.file("a");
    std::vector<std::thread> others;
    for (int writer = 0; writer < writers; ++writer) {
        others.emplace_back([&] {
            for (int i = 0; i < changesEach; ++i) {
                changeFile(file, [](std::string_view bytes) { return std::string(bytes) + "x"; });
            }
        });
    }
    for (std::thread& other : others) other.join();
    EXPECT_EQ(folder.read("a"), std::string(writers * changesEach, 'x'));
    EXPECT_EQ(folder.entries(), 1U);
}

}  // namespace
}  // namespace hx::hosting
