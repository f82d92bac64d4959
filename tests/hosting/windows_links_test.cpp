// SPDX-License-Identifier: MIT
#include "support/windows_links.h"

#include <fstream>
#include <gtest/gtest.h>

#include "hosting/file_bytes.h"
#include "hosting/links.h"
#include "hosting/windows_path.h"
#include "support/temporary_folder.h"

namespace hx::hosting {
namespace {

namespace fs = std::filesystem;

class WindowsLinks : public testing::Test {
  protected:
    [[nodiscard]] fs::path at(const char* name) const { return fs::path(folder.file(name)).make_preferred(); }
    [[nodiscard]] fs::path deepFolder() const {
        fs::path deep = at("real");
        for (int i = 0; i < 8; ++i) deep /= std::wstring(40, L'a');
        fs::create_directories(longName(deep));
        return deep;
    }
    support::TemporaryFolder folder;
};

TEST_F(WindowsLinks, AFileIsReplacedBehindThem) {
    fs::create_directory(at("real"));
    std::ofstream(at("real/a.ini")) << "old";
    const support::Link link(at("real/a.ini"), at("link.ini"));
    EXPECT_EQ(behindLinks(at("link.ini")), behindLinks(at("real/a.ini")));
    replaceFile(at("link.ini"), "new");
    EXPECT_EQ(readFile(at("real/a.ini")), "new");
    EXPECT_EQ(readFile(at("link.ini")), "new");
}

TEST_F(WindowsLinks, AFileWithoutThemKeepsItsName) {
    std::ofstream(at("a.ini")) << "text";
    EXPECT_EQ(behindLinks(at("A.INI")), at("A.INI"));
    EXPECT_EQ(behindLinks(at("none.ini")), at("none.ini"));
}

TEST_F(WindowsLinks, AFileThatIsToBeMadeLiesBehindTheLinkToItsFolder) {
    fs::create_directory(at("real"));
    const support::Link link(at("real"), at("link"));
    EXPECT_EQ(placeOf(at("link/new/a.ini")), placeOf(at("real")) / L"new" / L"a.ini");
}

TEST_F(WindowsLinks, NamesOfAnyLengthAreReplaced) {
    const fs::path file = deepFolder() / L"a.ini";
    replaceFile(file, "text");
    EXPECT_EQ(behindLinks(file), file);
    EXPECT_EQ(readFile(longName(file)), "text");
}

TEST_F(WindowsLinks, NamesOfAnyLengthAreFollowed) {
    EXPECT_EQ(placeOf(deepFolder() / L"a.ini"), placeOf(deepFolder()) / L"a.ini");
    EXPECT_FALSE(placeOf(deepFolder()).empty());
}

}  // namespace
}  // namespace hx::hosting
