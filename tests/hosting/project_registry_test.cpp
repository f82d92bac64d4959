// SPDX-License-Identifier: MIT
#include "hosting/project_registry.h"

#include <gtest/gtest.h>

#include "automation/error.h"
#include "hosting/files_folder.h"
#include "hosting/registry_file.h"

namespace hx::hosting {
namespace {

const std::string plant = std::string(host::registry_keys::projects) + "Plant";

TEST(ProjectRegistry, IsCertainOfItsOwnProjectWhateverOthersRecord) {
    const FilesFolder folder;
    RegistryFile file(folder.file("r"));
    RegistryFile othersFile(folder.file("r"));
    ProjectRegistry registry(file), others(othersFile);
    registry.open("Plant", "/a");
    others.open("PLANT", "/b");
    EXPECT_EQ(registry.readString(plant, "Path"), "/a");
    EXPECT_EQ(registry.readString(plant, "PATH", "none"), "/a");
    EXPECT_EQ(registry.folderOf("plant"), "/a");
    EXPECT_EQ(others.readString(plant, "Path"), "/b");
    EXPECT_EQ(file.readString(plant, "Path"), "/b");

    registry.close();
    EXPECT_EQ(registry.folderOf("Plant"), "/b") << "the one that was recorded last";
    registry.open("Other", "/c");
    EXPECT_EQ(registry.folderOf("Plant"), "/b");
    EXPECT_EQ(registry.folderOf("none"), "");
}

TEST(ProjectRegistry, PassesAllElseOn) {
    const FilesFolder folder;
    RegistryFile file(folder.file("r"));
    ProjectRegistry registry(file);
    registry.open("Plant", "/a");
    registry.writeNumber(host::registry_keys::helvix, "LCID", 1033);
    registry.writeString(plant, "Note", "x");
    EXPECT_EQ(file.readNumber(host::registry_keys::helvix, "LCID", 0), 1033);
    EXPECT_EQ(registry.readNumber(host::registry_keys::helvix, "LCID", 0), 1033);
    EXPECT_EQ(registry.readString(plant, "Note"), "x");
    EXPECT_EQ(registry.readString("", "Path", "none"), "none");
}

TEST(ProjectRegistry, HasNoProjectOpenThatCouldNotBeRecorded) {
    const FilesFolder folder;
    RegistryFile file(folder.write("r", ""));
    ProjectRegistry registry(file);
    registry.open("Plant", "/a");
    EXPECT_THROW(registry.open("Plant", "/b\n"), automation::Error);
    registry.writeString(plant, "Path", "/c");
    EXPECT_EQ(registry.folderOf("Plant"), "/c");
}

}  // namespace
}  // namespace hx::hosting
