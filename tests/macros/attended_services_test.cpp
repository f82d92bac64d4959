// SPDX-License-Identifier: MIT
#include "macros/attended_services.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "hosting/ini_text_file.h"
#include "support/temporary_folder.h"

namespace hx::macros {
namespace {

class AttendedSettings : public testing::Test {
  protected:
    AttendedSettings() { std::filesystem::create_directory(project_); }
    std::string written(const std::string& path) {
        try {
            files_.write("s", "key", "value", path);
        } catch (const automation::Error& error) {
            return error.description();
        }
        return files_.read("s", "key", "nothing", path);
    }

    support::TemporaryFolder folder_;
    std::string project_ = folder_.file("project");
    hosting::IniTextFile user_;
    Attendance attendance_;
    AttendedIniFile files_{user_, attendance_, [this] { return std::filesystem::path(project_); }};
};

TEST_F(AttendedSettings, AreBesideTheProjectForTheUserWhateverAMacroHasNamed) {
    EXPECT_EQ(written(project_ + "/own.ini"), "value");
    std::filesystem::create_symlink(folder_.file("shared.ini"), project_ + "/link.ini");
    EXPECT_EQ(written(project_ + "/link.ini"), "value");
    for (const std::string& path : {folder_.file("outside.ini"), std::string("relative.ini"), project_ + "/a/b.ini"}) {
        EXPECT_EQ(written(path), "The file '" + path + "' does not lie beside the project");
        EXPECT_FALSE(std::filesystem::exists(path));
    }
    const std::string plant = project_ + "/plant.hxs";
    EXPECT_EQ(written(plant), "The file '" + plant + "' does not lie beside the project");
}

TEST_F(AttendedSettings, AreAmongTheFilesOfAMacro) {
    attendance_.begin({}, lua::MacroFiles(project_));
    EXPECT_EQ(written(project_ + "/own.ini"), "value");
    EXPECT_EQ(written("relative.ini"), "value");
    EXPECT_TRUE(std::filesystem::exists(project_ + "/relative.ini"));
    const std::string outside = folder_.file("outside.ini");
    const std::string where = "' is not in the folder '" + project_ + "', whose files the macro may use";
    EXPECT_EQ(written(outside), "The file '" + outside + where);
    EXPECT_EQ(written(project_ + "/../outside.ini"), "The file '" + project_ + "/../outside.ini" + where);
    EXPECT_EQ(written("plant.hxs"), "The file 'plant.hxs' is a project and cannot be written by a macro");
    EXPECT_EQ(written("plant.hxs-journal"),
              "The file 'plant.hxs-journal' is a project and cannot be written by a macro");
    EXPECT_FALSE(std::filesystem::exists(project_ + "/plant.hxs-journal"));
    EXPECT_FALSE(std::filesystem::exists(outside));
    const auto aside = attendance_.stepAside();
    EXPECT_THAT(written(project_ + "/users.ini"), "value") << "what the user does between two steps of the macro";
}

TEST_F(AttendedSettings, AreNowhereForAMacroWithoutAProject) {
    attendance_.begin({}, {});
    EXPECT_THAT(written("own.ini"), testing::HasSubstr("The macro has no files"));
}

}  // namespace
}  // namespace hx::macros
