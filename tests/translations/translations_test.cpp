// SPDX-License-Identifier: MIT
#include <cstdlib>

#include "support/temporary_folder.h"

namespace hx {
namespace {

std::string contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// What collects the texts marks the ones that have no translation and the translations that nothing asks for.
TEST(Translations, EveryTextOfTheWindowsIsThereInGermanAndNoOther) {
    const support::TemporaryFolder folder;
    const std::string copy = folder.file("hx_de.ts");
    std::filesystem::copy_file(HX_SOURCE_FOLDER "/adapters/qt/translations/hx_de.ts", copy);
    const std::string command = "'" HX_LUPDATE
                                "' -silent -locations none -disable-heuristic sametext -disable-heuristic similartext "
                                "-disable-heuristic number '" HX_SOURCE_FOLDER "' -ts '" +
                                copy + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);
    const std::string texts = contents(copy);
    ASSERT_THAT(texts, testing::HasSubstr("<source>&amp;New Project…</source>"));
    for (const char* mark : {"unfinished", "vanished", "obsolete"}) {
        const auto at = texts.find("<translation type=\"" + std::string(mark));
        EXPECT_EQ(at, std::string::npos) << mark << ": " << texts.substr(texts.rfind("<source>", at), 200);
    }
}

TEST(Translations, WhatTheStudioLoadsOrIsBringsThemWithoutAnotherFile) {
    const std::string translation = contents(HX_TRANSLATION);
    ASSERT_FALSE(translation.empty());
    for (const char* program : {HX_STUDIO, HX_REPORT}) {
        EXPECT_NE(contents(program).find(translation), std::string::npos) << program;
    }
}

}  // namespace
}  // namespace hx
