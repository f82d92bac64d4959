// SPDX-License-Identifier: MIT
#include "host/paths.h"

#include <gtest/gtest.h>

namespace hx::host {
namespace {

TEST(PathStyle, JoinsWithTheHostsSeparator) {
    EXPECT_EQ(PathStyle('\\').join("D:\\Prj", "Plant.hxs"), "D:\\Prj\\Plant.hxs");
    EXPECT_EQ(PathStyle('/').join("/home/plant", "Plant.hxs"), "/home/plant/Plant.hxs");
}

TEST(PathStyle, JoinsAnEmptyFolderToAPathThatBeginsWithTheSeparator) {
    EXPECT_EQ(PathStyle('\\').join("", "Plant.hxs"), "\\Plant.hxs");
    EXPECT_EQ(PathStyle('/').join("", "Plant.hxs"), "/Plant.hxs");
}

TEST(PathStyle, SplitsAtBothSeparators) {
    EXPECT_EQ(PathStyle::folderOf("D:\\Prj\\Plant.hxs"), "D:\\Prj\\");
    EXPECT_EQ(PathStyle::folderOf("/home/plant/Plant.hxs"), "/home/plant/");
    EXPECT_EQ(PathStyle::folderOf("D:\\Prj/Plant.hxs"), "D:\\Prj/");
    EXPECT_EQ(PathStyle::fileOf("D:/Prj\\Plant.hxs"), "Plant.hxs");
    EXPECT_EQ(PathStyle::fileOf("D:\\Prj\\"), "");
}

TEST(PathStyle, FindsNoFolderInAPlainName) {
    EXPECT_EQ(PathStyle::folderOf("Plant.hxs"), "");
    EXPECT_EQ(PathStyle::fileOf("Plant.hxs"), "Plant.hxs");
    EXPECT_EQ(PathStyle::folderOf(""), "");
}

}  // namespace
}  // namespace hx::host
