// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "fuzz/targets.h"

/// What was once found to break a reader, and what leads a search to its corners.
namespace hx::fuzz {
namespace {

namespace fs = std::filesystem;

class Corpus : public testing::TestWithParam<Target> {};

TEST_P(Corpus, IsReadOrRefused) {
    int read = 0;
    for (const auto& entry : fs::directory_iterator(fs::path(HX_CORPUS_FOLDER) / GetParam().name)) {
        SCOPED_TRACE(entry.path());
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        // Cut off anywhere it must be refused as well.
        for (std::size_t size = 0; size < bytes.size(); size += 1 + bytes.size() / 50)
            GetParam().run({bytes.data(), size});
        GetParam().run(bytes);
        ++read;
    }
    EXPECT_GT(read, 0);
}

INSTANTIATE_TEST_SUITE_P(Fuzz, Corpus, testing::ValuesIn(targets().begin(), targets().end()), [](const auto& target) {
    std::string name(target.param.name);
    std::erase(name, '-');
    return name;
});

}  // namespace
}  // namespace hx::fuzz
