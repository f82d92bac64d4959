// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "hosting/file_bytes.h"
#include "hosting/files_folder.h"

namespace hx::hosting {
namespace {

TEST(TheStartOfAFile, IsAsLongAsWantedOrTheFile) {
    const FilesFolder folder;
    const std::string path = folder.write("a", "12345");
    EXPECT_EQ(startOf(path, 3), "123");
    EXPECT_EQ(startOf(path, 5), "12345");
    EXPECT_EQ(startOf(path, 9), "12345");
    EXPECT_EQ(startOf(folder.write("b", ""), 4), "");
}

TEST(TheStartOfAFile, IsNothingOfWhatIsNoFile) {
    const FilesFolder folder;
    EXPECT_EQ(startOf(folder.path(), 4), "");
    EXPECT_EQ(startOf(folder.file("missing"), 4), "");
    EXPECT_EQ(startOf("/dev/zero", 4), "");
}

}  // namespace
}  // namespace hx::hosting
