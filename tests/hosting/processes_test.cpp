// SPDX-License-Identifier: MIT
#include "support/processes.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>

#include "hosting/file_bytes.h"
#include "hosting/file_lock.h"
#include "hosting/file_replacement.h"
#include "hosting/files_folder.h"
#include "hosting/ini_text_file.h"
#include "hosting/registry_file.h"

namespace hx::hosting {
namespace {

namespace fs = std::filesystem;

constexpr int writers = 8, valuesEach = 25;

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

TEST(SeveralProcesses, ClearWhatAKilledOneLeft) {
    const FilesFolder folder;
    const std::string path = folder.write("a.txt", "old");
    support::Processes others;
    others.start([&] {
        FileReplacement file(path);
        file.write("half");
        FileReplacement draft(folder.file("b.hxs"));
        (void)folder.write(draft.temporary().filename().string() + "-journal", "journal");
        _exit(EXIT_SUCCESS);
    });
    EXPECT_EQ(others.wait(), 0);
    ASSERT_EQ(folder.entries(), 4U);
    replaceFile(path, "new");
    EXPECT_EQ(folder.entries(), 3U) << "that of the other file is not its own to clear";
    replaceFile(folder.file("b.hxs"), "new");
    EXPECT_EQ(folder.entries(), 2U);
}

TEST(SeveralProcesses, LeaveTheBytesThatADatabaseLocksToIt) {
    const FilesFolder folder;
    FileReplacement draft(folder.file("a.txt"));
    support::Processes others;
    others.start([&] {
        const int file = open(draft.temporary().c_str(), O_RDWR);
        struct flock lock {};
        lock.l_type = F_WRLCK;
        lock.l_whence = SEEK_SET;
        lock.l_len = off_t{1} << 40;
        const bool locked = file >= 0 && fcntl(file, F_SETLK, &lock) == 0 && flock(file, LOCK_EX | LOCK_NB) == 0;
        _exit(locked ? EXIT_SUCCESS : EXIT_FAILURE);
    });
    EXPECT_EQ(others.wait(), 0);
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
