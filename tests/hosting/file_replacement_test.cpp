// SPDX-License-Identifier: MIT
#include "hosting/file_replacement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "automation/error.h"
#include "hosting/failing_disk.h"
#include "hosting/file_bytes.h"
#include "hosting/files_folder.h"
#include "support/memory_shortage.h"

namespace hx::hosting {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

/// The description of the error that an action ends with.
std::string failureOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.number(), automation::errFail);
        return error.description();
    }
    return "done";
}

class FileReplacementTest : public ::testing::Test {
  protected:
    std::string path() const { return folder.file("a.txt"); }
    void given(std::string_view bytes) { EXPECT_EQ(folder.write("a.txt", bytes), path()); }
    std::string text() const { return folder.read("a.txt"); }

    FilesFolder folder;
};

TEST_F(FileReplacementTest, WritesSyncsAndRenamesBeforeItSyncsTheFolder) {
    const FailingDisk disk;
    replaceFile(path(), "new", disk);
    EXPECT_EQ(text(), "new");
    EXPECT_THAT(disk.steps(), ElementsAre("create", "write", "sync", "rename", "syncFolder"));
    EXPECT_EQ(folder.entries(), 1U);
}

TEST_F(FileReplacementTest, HoldsTheOldFileOrTheNewOneWhereverMemoryRunsOut) {
    given("old");
    EXPECT_GT(support::refuseEachBlock([&] { replaceFile(path(), "new contents"); }), 5);
    EXPECT_EQ(text(), "new contents");
    EXPECT_EQ(folder.entries(), 1U);
}

TEST_F(FileReplacementTest, LeavesTheOldFileWhicheverStepFails) {
    given("old");
    for (int step = 1; step <= 4; ++step) {
        const FailingDisk disk(step);
        EXPECT_THAT(failureOf([&] { replaceFile(path(), "new contents", disk); }),
                    HasSubstr("a.txt' cannot be written: Input/output error."))
            << step;
        EXPECT_EQ(text(), "old") << disk.steps().back();
        EXPECT_EQ(folder.entries(), 1U) << disk.steps().back();
    }
}

TEST_F(FileReplacementTest, SaysThatTheNewFileIsThereButNotSafe) {
    given("old");
    EXPECT_EQ(failureOf([&] { replaceFile(path(), "new", FailingDisk(5)); }),
              "The file '" + path() + "' is written, but the disk does not confirm it: Input/output error.");
    EXPECT_EQ(text(), "new");
    EXPECT_EQ(folder.entries(), 1U);
}

TEST_F(FileReplacementTest, SaysThatTheDiskIsFull) {
    given("old");
    EXPECT_EQ(failureOf([&] { replaceFile(path(), "new", FailingDisk(2, std::errc::no_space_on_device)); }),
              "The file '" + path() + "' cannot be written: the disk is full.");
}

TEST_F(FileReplacementTest, SaysInGermanTooWhatHasFailed) {
    given("old");
    const auto told = [this](const Disk& disk) {
        try {
            replaceFile(path(), "new", disk);
        } catch (const automation::Error& error) {
            return error.description(automation::Language::german);
        }
        return std::string();
    };
    EXPECT_EQ(told(FailingDisk(5)), "Die Datei '" + path() +
                                        "' ist geschrieben, aber der Datenträger bestätigt es nicht: "
                                        "Ein-/Ausgabefehler.");
    EXPECT_EQ(told(FailingDisk(2, std::errc::no_space_on_device)),
              "Die Datei '" + path() + "' kann nicht geschrieben werden: der Datenträger ist voll.");
    EXPECT_EQ(told(FailingDisk(2, std::errc::host_unreachable)),
              "Die Datei '" + path() + "' kann nicht geschrieben werden: No route to host.");
}

TEST_F(FileReplacementTest, DoesNotUseAFileOfTheNameThatItWouldTake) {
    given("old");
    const FailingDisk disk(1, std::errc::file_exists);
    replaceFile(path(), "new", disk);
    EXPECT_THAT(disk.steps(), ElementsAre("create", "create", "write", "sync", "rename", "syncFolder"));
    EXPECT_EQ(text(), "new");
}

TEST_F(FileReplacementTest, AsksForAFileOfItsOwn) {
    const FilesFolder other;
    given("victim");
    fs::create_symlink(path(), folder.file("link"));
    Disk::Handle file = Disk::none;
    for (const char* taken : {"a.txt", "link"}) {
        EXPECT_EQ(systemDisk().create(folder.file(taken), path(), file), std::errc::file_exists);
    }
    EXPECT_EQ(text(), "victim");
}

TEST_F(FileReplacementTest, PutsNothingInThePlaceOfAFileThatAppearedMeanwhile) {
    {
        FileReplacement file(path());
        file.write("new");
        given("mine");
        EXPECT_FALSE(file.publishNew());
    }
    EXPECT_EQ(text(), "mine");
    EXPECT_EQ(folder.entries(), 1U);
    fs::remove(path());
    FileReplacement file(path());
    file.write("new");
    EXPECT_TRUE(file.publishNew());
    EXPECT_EQ(text(), "new");
    EXPECT_EQ(folder.entries(), 1U);
}

TEST_F(FileReplacementTest, LeavesThePlaceEmptyWhicheverStepOfANewFileFails) {
    for (int step = 1; step <= 4; ++step) {
        const FailingDisk disk(step);
        const auto make = [&] {
            FileReplacement file(path(), disk);
            file.write("new");
            EXPECT_FALSE(file.publishNew());
        };
        EXPECT_THAT(failureOf(make), HasSubstr("Input/output error")) << step;
        EXPECT_EQ(folder.entries(), 0U) << disk.steps().back();
    }
}

TEST_F(FileReplacementTest, KeepsThePermissionsFromTheFirstByteOn) {
    given("old");
    for (const auto permissions : {fs::perms{0600}, fs::perms{0664}, fs::perms{0750}}) {
        fs::permissions(path(), permissions);
        FileReplacement file(path());
        EXPECT_EQ(fs::status(file.temporary()).permissions(), permissions);
        file.write("new");
        file.publish();
        EXPECT_EQ(fs::status(path()).permissions(), permissions);
    }
}

TEST_F(FileReplacementTest, GivesANewFileTheUsualPermissions) {
    (void)folder.write("usual", "");
    replaceFile(path(), "new");
    EXPECT_EQ(fs::status(path()).permissions(), fs::status(folder.file("usual")).permissions());
}

TEST_F(FileReplacementTest, FollowsLinksThatLeadNowhereYet) {
    fs::create_directory(folder.file("real"));
    fs::create_symlink("real/b.txt", folder.file("link"));
    fs::create_symlink(folder.file("link"), path());
    replaceFile(path(), "new");
    EXPECT_TRUE(fs::is_symlink(path()));
    EXPECT_TRUE(fs::is_symlink(folder.file("link")));
    EXPECT_EQ(folder.read("real/b.txt"), "new");
}

TEST_F(FileReplacementTest, RefusesLinksThatLeadInACircle) {
    fs::create_symlink(folder.file("link"), path());
    fs::create_symlink(path(), folder.file("link"));
    EXPECT_THAT(failureOf([&] { replaceFile(path(), "new"); }), HasSubstr("cannot be written"));
    EXPECT_TRUE(fs::is_symlink(path()));
    EXPECT_EQ(folder.entries(), 2U);
}

TEST_F(FileReplacementTest, LeavesWhatAnotherIsStillWriting) {
    FileReplacement slow(path());
    (void)folder.write(slow.temporary().filename().string() + "-journal", "journal");
    slow.write("slow");
    replaceFile(path(), "fast");
    EXPECT_TRUE(fs::exists(slow.temporary()));
    EXPECT_EQ(folder.entries(), 3U);
    slow.publish();
    EXPECT_EQ(text(), "slow");
}

TEST_F(FileReplacementTest, LeavesFilesThatAreOnlyNamedAlike) {
    const std::vector<std::string> names = {
        "a.txt.new",        "a.txt.0123456789abcdef",      "a.txt.0123456789abcdeX.new",
        "a.txt.backup.new", "a.txt.0123456789abcdef.news", "b.txt.0123456789abcdef.new"};
    for (const std::string& name : names) (void)folder.write(name, "mine");
    fs::create_directory(folder.file("a.txt.0123456789abcdef.new"));
    replaceFile(path(), "new");
    for (const std::string& name : names) EXPECT_EQ(folder.read(name), "mine") << name;
    EXPECT_TRUE(fs::is_directory(folder.file("a.txt.0123456789abcdef.new")));
}

}  // namespace
}  // namespace hx::hosting
