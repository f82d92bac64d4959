#include "macros/attended_services.h"

#include <fstream>
#include <gtest/gtest.h>

#include "host/ini_text_file.h"
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
    host::IniTextFile user_;
    Attendance attendance_;
    AttendedIniFile files_{user_, attendance_, [this] { return std::filesystem::path(project_); }};
};

TEST_F(AttendedSettings, AreAnywhereForTheUser) {
    EXPECT_EQ(written(folder_.file("outside.ini")), "value");
    attendance_.begin({});
    attendance_.end();
    EXPECT_EQ(written(folder_.file("other.ini")), "value");
}

TEST_F(AttendedSettings, AreInTheProjectsFolderForAMacro) {
    attendance_.begin({});
    EXPECT_EQ(written(project_ + "/own.ini"), "value");
    EXPECT_EQ(written("relative.ini"), "value");
    EXPECT_TRUE(std::filesystem::exists(project_ + "/relative.ini"));
    const std::string outside = folder_.file("outside.ini");
    EXPECT_EQ(written(outside), "The file '" + outside + "' is not in the project's folder");
    EXPECT_EQ(written(project_ + "/../outside.ini"),
              "The file '" + project_ + "/../outside.ini' is not in the project's folder");
    EXPECT_EQ(written("plant.hxs"), "The file 'plant.hxs' is a project and holds no settings");
    EXPECT_EQ(written("plant.hxs-journal"), "The file 'plant.hxs-journal' is a project and holds no settings");
    EXPECT_FALSE(std::filesystem::exists(project_ + "/plant.hxs-journal"));
    EXPECT_FALSE(std::filesystem::exists(outside));
    const Attendance::Aside aside(attendance_);
    EXPECT_EQ(written(outside), "value") << "what the user does between two steps of the macro";
}

TEST_F(AttendedSettings, AreNowhereForAMacroWithoutAProject) {
    project_.clear();
    attendance_.begin({});
    EXPECT_EQ(written("own.ini"), "No project is open whose folder could hold settings");
}

}  // namespace
}  // namespace hx::macros
