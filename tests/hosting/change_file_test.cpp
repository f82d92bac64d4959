// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "automation/error.h"
#include "hosting/failing_disk.h"
#include "hosting/file_bytes.h"
#include "hosting/file_lock.h"
#include "hosting/files_folder.h"
#include "hosting/ini_text_file.h"
#include "hosting/registry_file.h"
#include "support/processes.h"

namespace hx::hosting {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

constexpr int writers = 8, valuesEach = 25;

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

TEST(ALockedFile, IsFreeAgainWhenItsProgramIsKilled) {
    const FilesFolder folder;
    support::Processes others;
    others.start([&] {
        const FileLock lock(folder.file("a"));
        _exit(EXIT_SUCCESS);
    });
    EXPECT_EQ(others.wait(), 0);
    const FileLock lock(folder.file("a"), systemDisk(), std::chrono::milliseconds(0));
}

TEST(SeveralProcesses, LoseNoValueOfTheRegistry) {
    const FilesFolder folder;
    const std::string file = folder.file("config/registry.ini");
    support::Processes others;
    for (int writer = 0; writer < writers; ++writer) {
        others.start([&, writer] {
            RegistryFile registry(file);
            const std::string key = "Writer" + std::to_string(writer);
            for (int i = 0; i < valuesEach; ++i) {
                registry.writeNumber(key, "v" + std::to_string(i), i);
                registry.writeNumber("Shared", "last", i);
            }
        });
    }
    EXPECT_EQ(others.wait(), 0);
    const RegistryFile registry(file);
    for (int writer = 0; writer < writers; ++writer) {
        for (int i = 0; i < valuesEach; ++i) {
            EXPECT_EQ(registry.readNumber("Writer" + std::to_string(writer), "v" + std::to_string(i), -1), i);
        }
    }
    EXPECT_EQ(registry.readNumber("Shared", "last", -1), valuesEach - 1);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.file("config")), {}), 1);
}

TEST(SeveralProcesses, LoseNoTextOfAnIniFile) {
    const FilesFolder folder;
    const std::string file = folder.file("HXEditors.ini");
    support::Processes others;
    for (int writer = 0; writer < writers; ++writer) {
        others.start([&, writer] {
            IniTextFile ini;
            for (int i = 0; i < valuesEach; ++i) {
                const std::string key = std::to_string(writer) + "." + std::to_string(i);
                ini.writeAll("s", std::vector<host::IniText>{{key, "1"}, {"last", key}}, file);
            }
        });
    }
    EXPECT_EQ(others.wait(), 0);
    const IniTextFile ini;
    for (int writer = 0; writer < writers; ++writer) {
        for (int i = 0; i < valuesEach; ++i) {
            EXPECT_EQ(ini.read("s", std::to_string(writer) + "." + std::to_string(i), "lost", file), "1");
        }
    }
    EXPECT_EQ(folder.entries(), 1U);
}

}  // namespace
}  // namespace hx::hosting
