// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <windows.h>

#include "adapters/lua/macro_files.h"
#include "support/error_of.h"
#include "support/temporary_folder.h"
#include "support/windows_links.h"

namespace hx::lua {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class WindowsMacroFiles : public testing::Test {
  protected:
    WindowsMacroFiles() {
        for (const char* name : {"project", "project/lists", "other"}) fs::create_directories(at(name));
        for (const char* name : {"project/list.txt", "project/Plant.hxs", "other/secret.txt"}) {
            std::ofstream(at(name)) << "text";
        }
    }
    [[nodiscard]] fs::path at(const char* name) const { return fs::path(folder.file(name)).make_preferred(); }
    [[nodiscard]] MacroFiles files() const { return MacroFiles(at("project")); }
    [[nodiscard]] std::string refusalOf(const std::string& name) const {
        return support::errorOf([&] { (void)files().toReplace(name); }).description();
    }

    support::TemporaryFolder folder;
};

TEST_F(WindowsMacroFiles, AreFoundBelowTheFolder) {
    EXPECT_EQ(files().toRead("LIST.txt"), files().toRead("lists\\../list.txt"));
    EXPECT_EQ(fs::path(files().toRead("LIST.txt")).filename(), "list.txt");
    EXPECT_EQ(fs::path(files().toReplace("lists/new/made.txt")).filename(), "made.txt");
}

TEST_F(WindowsMacroFiles, AreNotReachedByALink) {
    const support::Link link(at("other/secret.txt"), at("project/link.txt"));
    const support::Link folderLink(at("other"), at("project/folder"));
    for (const char* name : {"link.txt", "folder\\secret.txt", "folder/new.txt", "lists/../folder/a/b.txt"}) {
        EXPECT_THAT(refusalOf(name), HasSubstr("is not in the folder")) << name;
    }
}

TEST_F(WindowsMacroFiles, MayLieInAFolderThatALinkLeadsTo) {
    const support::Link link(at("project"), at("link"));
    const MacroFiles files(at("link"));
    EXPECT_EQ(files.toRead("list.txt"), files.toRead(at("project/list.txt").string()));
}

TEST_F(WindowsMacroFiles, AreNoDevicesAndNoStreams) {
    for (const char* name : {"CON", "lists/nul", "COM1", "list.txt:hidden", "Plant.hxs::$DATA", "\\\\.\\C:"}) {
        EXPECT_THAT(refusalOf(name), HasSubstr("is not in the folder")) << name;
    }
}

TEST_F(WindowsMacroFiles, AreProjectsWhateverStandsBehindTheirNames) {
    for (const char* name :
         {"Plant.hxs", "PLANT.HXS", "Plant.hxs.", "Plant.hxs . ", "New.hxs ", "Plant.hxs-journal."}) {
        EXPECT_THAT(refusalOf(name), HasSubstr("is a project")) << name;
    }
}

}  // namespace
}  // namespace hx::lua
