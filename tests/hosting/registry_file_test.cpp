// SPDX-License-Identifier: MIT
#include "hosting/registry_file.h"

#include <gtest/gtest.h>

#include "automation/error.h"
#include "hosting/files_folder.h"

namespace hx::hosting {
namespace {

TEST(RegistryFile, IsEmptyWithoutAFile) {
    const FilesFolder folder;
    const RegistryFile registry(folder.file("registry"));
    EXPECT_EQ(registry.readString(host::registry_keys::tarnwell, "Common", "none"), "none");
    EXPECT_EQ(registry.readString(host::registry_keys::tarnwell, "Common"), "");
    EXPECT_EQ(registry.readNumber(host::registry_keys::helvix, "LCID", 1031), 1031);
}

TEST(RegistryFile, StoresTextsAndNumbersSoThatAPersonCanReadThem) {
    const FilesFolder folder;
    RegistryFile registry(folder.file("config/helvix/registry"));
    registry.writeNumber(host::registry_keys::helvix, "LCID", 1033);
    registry.writeString(std::string(host::registry_keys::projects) + "Plant", "Path", "D:\\Prj");
    EXPECT_EQ(folder.read("config/helvix/registry"),
              "[SOFTWARE\\Tarnwell\\Helvix\\4.0]\r\nLCID=dword:1033\r\n"
              "[SOFTWARE\\Tarnwell\\Helvix\\4.0\\Projects\\Plant]\r\nPath=\"D:\\Prj\"\r\n");
    EXPECT_EQ(registry.readNumber("software\\TARNWELL\\helvix\\4.0\\", "lcid", 0), 1033);
    EXPECT_EQ(registry.readString(std::string(host::registry_keys::projects) + "PLANT", "PATH"), "D:\\Prj");
}

TEST(RegistryFile, ReadsItsOwnNegativeNumbersQuotesAndBlanks) {
    const FilesFolder folder;
    RegistryFile registry(folder.file("r"));
    registry.writeNumber("K", "n", -5);
    registry.writeString("K", "s", " \"a\" = b ");
    registry.writeString("K", "empty", "");
    registry.writeString("K", "looks", "dword:7");
    EXPECT_EQ(registry.readNumber("K", "n", 0), -5);
    EXPECT_EQ(registry.readString("K", "s"), " \"a\" = b ");
    EXPECT_EQ(registry.readString("K", "empty", "none"), "");
    EXPECT_EQ(registry.readString("K", "looks"), "dword:7");
}

TEST(RegistryFile, TakesAValueOfTheOtherKindAsMissing) {
    const FilesFolder folder;
    RegistryFile registry(
        folder.write("r", "[K]\nLCID=dword:1033\nPath=\"7\"\nbare=1033\nbad=dword:x\nbig=dword:9999999999\n"));
    EXPECT_EQ(registry.readString("K", "LCID", "none"), "none");
    EXPECT_EQ(registry.readNumber("K", "Path", -1), -1);
    EXPECT_EQ(registry.readNumber("K", "bad", -1), -1);
    EXPECT_EQ(registry.readNumber("K", "big", -1), -1);
    EXPECT_EQ(registry.readNumber("K", "bare", -1), 1033);
    EXPECT_EQ(registry.readString("K", "bare"), "1033");
}

TEST(RegistryFile, KeepsWhatAPersonWroteIntoTheFile) {
    const FilesFolder folder;
    RegistryFile registry(folder.write("r", "; my own remark\n[K]\nunknown=x\nLCID=dword:1031\n"));
    registry.writeNumber("k", "LCID", 1033);
    EXPECT_EQ(folder.read("r"), "; my own remark\n[K]\nunknown=x\nLCID=dword:1033\n");
}

TEST(RegistryFile, SharesTheFileWithAnother) {
    const FilesFolder folder;
    RegistryFile one(folder.file("r"));
    RegistryFile other(folder.file("r"));
    one.writeNumber("K", "a", 1);
    other.writeNumber("K", "b", 2);
    one.writeNumber("K", "c", 3);
    EXPECT_EQ(other.readNumber("K", "a", 0), 1);
    EXPECT_EQ(one.readNumber("K", "b", 0), 2);
    EXPECT_EQ(other.readNumber("K", "c", 0), 3);
}

TEST(RegistryFile, SaysWhichFileCannotBeReadOrWritten) {
    const FilesFolder folder;
    RegistryFile registry(folder.path());
    for (const auto& use : {std::function<void()>([&] { (void)registry.readString("K", "a"); }),
                            std::function<void()>([&] { registry.writeString("K", "a", "x"); })}) {
        try {
            use();
            ADD_FAILURE() << "a folder was used as a file";
        } catch (const automation::Error& error) {
            EXPECT_EQ(error.description(), "The file '" + folder.path() + "' cannot be read: it is no file.");
        }
    }
    EXPECT_THROW(RegistryFile(folder.write("f", "") + "/registry").writeNumber("K", "a", 1), automation::Error);
}

TEST(RegistryFile, RefusesATextOfSeveralLines) {
    const FilesFolder folder;
    RegistryFile registry(folder.write("r", "[K]\na=\"1\"\n"));
    EXPECT_THROW(registry.writeString("K", "a", "1\n[L]"), automation::Error);
    EXPECT_EQ(folder.read("r"), "[K]\na=\"1\"\n");
}

}  // namespace
}  // namespace hx::hosting
