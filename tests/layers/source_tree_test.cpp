// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

#include "layers/layer_rules.h"

namespace hx::layers {
namespace {

namespace fs = std::filesystem;

bool isSource(const fs::path& path) { return path.extension() == ".h" || path.extension() == ".cpp"; }

std::string contentOf(const fs::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// Hands every source file below src/ to the rule; gives the findings of all, a line each, and the number of files.
template <typename Rule>
std::pair<std::string, int> checkTree(Rule rule) {
    const fs::path root = HX_SOURCE_FOLDER;
    std::string findings;
    int files = 0;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        if (!entry.is_regular_file() || !isSource(entry.path())) continue;
        ++files;
        const auto path = entry.path().lexically_relative(root).generic_string();
        for (const auto& finding : rule(path, contentOf(entry.path()))) findings += "src/" + finding + "\n";
    }
    return {findings, files};
}

template <typename Rule>
void expectNoFindings(Rule rule) {
    const auto [findings, files] = checkTree(rule);
    EXPECT_EQ(findings, "");
    EXPECT_GT(files, 10);
}

TEST(SourceTree, EveryFolderIncludesOnlyTheLayersBelowIt) { expectNoFindings(wrongIncludes); }

TEST(SourceTree, NoFileIsLongerThanFourHundredLinesWithoutAReason) { expectNoFindings(tooManyLines); }

TEST(SourceTree, NoTextOfTheUsersIsShownAsHtml) { expectNoFindings(textsAsHtml); }

TEST(SourceTree, NoExceptionIsToldInItsOwnWords) { expectNoFindings(rawExceptions); }

}  // namespace
}  // namespace hx::layers
