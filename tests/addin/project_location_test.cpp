// SPDX-License-Identifier: MIT
#include "addin/project_location.h"

#include <gtest/gtest.h>

#include "studio.h"

namespace hx::addin {
namespace {

struct ProjectLocation : testing::Test {
    std::string located(std::string path, bool expected = true) {
        EXPECT_EQ(ReadCurrentProject(studio.host.services(), path), expected);
        return path;
    }
    Studio studio;
};

TEST_F(ProjectLocation, IsTheFolderInTheRegistryAndTheProjectName) {
    EXPECT_EQ(located("Plant"), "D:\\Prj\\Plant.hxs");
}

TEST_F(ProjectLocation, IsJoinedWithTheSeparatorOfTheHost) {
    headless::HostOptions options = Studio::windowsOptions();
    options.separator = '/';
    Studio desktop(options);
    desktop.host.registry.writeString("SOFTWARE\\Tarnwell\\Helvix\\4.0\\Projects\\Plant", "Path", "/srv/prj");
    std::string path = "Plant";
    EXPECT_TRUE(ReadCurrentProject(desktop.host.services(), path));
    EXPECT_EQ(path, "/srv/prj/Plant.hxs");
}

TEST_F(ProjectLocation, WithoutARegistryEntryBeginsWithTheSeparator) {
    EXPECT_EQ(located("Elsewhere"), "\\Elsewhere.hxs");
}

TEST_F(ProjectLocation, OfAFileNameIsThatFile) { EXPECT_EQ(located("E:\\x\\Other.hxs"), "E:\\x\\Other.hxs"); }

TEST_F(ProjectLocation, KeepsAFileNameInCapitalsAndItsBlankUnchanged) {
    EXPECT_EQ(located("E:\\OTHER.HXS "), "E:\\OTHER.HXS ");
    EXPECT_EQ(studio.host.registry.reads(), 0);
}

TEST_F(ProjectLocation, OfTheBareExtensionIsAFileToo) { EXPECT_EQ(located(".hxs"), ".hxs"); }

TEST_F(ProjectLocation, OfAnEmptyNameIsNoneAndTheRegistryIsNotRead) {
    EXPECT_EQ(located("", false), "");
    EXPECT_EQ(studio.host.registry.reads(), 0);
}

TEST_F(ProjectLocation, TakesABlankNameForAName) { EXPECT_EQ(located("  "), "\\  .hxs"); }

TEST_F(ProjectLocation, ShowsARegistryThatCannotBeRead) {
    studio.host.registry.failWith(automation::Error(automation::hresult(0x80070005), "Access is denied."));
    EXPECT_EQ(located("Plant", false), "Plant");
    EXPECT_EQ(studio.boxes(), (Texts{"MHXSGlobalEditors: ReadCurrentProject|-2147024891: Access is denied."}));
}

}  // namespace
}  // namespace hx::addin
