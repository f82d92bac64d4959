// SPDX-License-Identifier: MIT
#include "host/project_file.h"

#include <gtest/gtest.h>

namespace hx::host {
namespace {

TEST(ProjectFile, IsKnownByTheEndOfItsNameInWhateverCase) {
    EXPECT_TRUE(isProjectFile("/plants/Plant.hxs"));
    EXPECT_TRUE(isProjectFile("PLANT.HXS"));
    EXPECT_TRUE(isProjectFile(".hxs"));
    EXPECT_FALSE(isProjectFile("Plant.hxs "));
    EXPECT_FALSE(isProjectFile("Planthxs"));
    EXPECT_FALSE(isProjectFile("hxs"));
    EXPECT_FALSE(isProjectFile(""));
}

TEST(ProjectFile, IsNameableWithoutWhatEndsAValueOfAConnectionString) {
    EXPECT_TRUE(isNameable("/plants/Plant 'A'.hxs"));
    EXPECT_FALSE(isNameable("/plants/A;B.hxs"));
    EXPECT_FALSE(isNameable("/plants/\"A\".hxs"));
}

}  // namespace
}  // namespace hx::host
