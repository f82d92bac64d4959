// SPDX-License-Identifier: MIT
#include <array>
#include <cstdint>
#include <cstdio>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace hx {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

/// What readelf tells of a file.
std::string readelf(const std::string& options, const std::string& file) {
    const std::string command = std::string(HX_READELF) + " --wide " + options + " '" + file + "'";
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    if (!pipe) {
        return {};
    }
    std::string text;
    std::array<char, 65536> part{};
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe.get())) {
        text.append(part.data(), count);
    }
    return text;
}

struct UnwindEntry {
    std::uint64_t begin, end;
};

/// The entries of a file's unwind table, in lines such as "... FDE cie=00000000 pc=0000000000001000..0000000000001004".
std::vector<UnwindEntry> unwindEntries(const std::string& file) {
    std::vector<UnwindEntry> entries;
    std::istringstream lines(readelf("--debug-dump=frames", file));
    for (std::string line; std::getline(lines, line);) {
        const std::size_t range = line.find(" pc=");
        if (line.find(" FDE ") == std::string::npos || range == std::string::npos) {
            continue;
        }
        std::size_t length = 0;
        const std::string addresses = line.substr(range + 4);
        const std::uint64_t begin = std::stoull(addresses, &length, 16);
        entries.push_back({begin, std::stoull(addresses.substr(length + 2), nullptr, 16)});
    }
    return entries;
}

/// The addresses of functions that share theirs with an empty entry: an exception through one ends the program.
std::vector<std::uint64_t> hiddenFunctions(const std::string& file) {
    std::set<std::uint64_t> empty;
    const std::vector<UnwindEntry> entries = unwindEntries(file);
    for (const UnwindEntry& entry : entries) {
        if (entry.begin == entry.end) {
            empty.insert(entry.begin);
        }
    }
    std::vector<std::uint64_t> hidden;
    for (const UnwindEntry& entry : entries) {
        if (entry.begin != entry.end && empty.contains(entry.begin)) {
            hidden.push_back(entry.begin);
        }
    }
    return hidden;
}

class ProgramsTest : public testing::TestWithParam<const char*> {};

TEST_P(ProgramsTest, HidesNoFunctionFromTheUnwinderByAnEmptyEntry) {
    EXPECT_GT(unwindEntries(GetParam()).size(), 100U) << "the unwind table was not read";
    EXPECT_THAT(hiddenFunctions(GetParam()), IsEmpty());
}

TEST_P(ProgramsTest, BindsItsSymbolsAtItsStartAndProtectsThem) {
    EXPECT_THAT(readelf("--dynamic", GetParam()), HasSubstr("NOW"));
    const std::string segments = readelf("--segments", GetParam());
    EXPECT_THAT(segments, HasSubstr("GNU_RELRO"));
    EXPECT_THAT(segments, HasSubstr("GNU_STACK"));
    EXPECT_THAT(segments, Not(HasSubstr("RWE")));
}

#ifndef HX_SANITIZED  // which watches the stack and the library's calls in its own way
TEST_P(ProgramsTest, WatchesItsStack) { EXPECT_THAT(readelf("--dyn-syms", GetParam()), HasSubstr("__stack_chk_fail")); }

TEST(UsersProgramsTest, CheckTheSizesThatTheLibraryWritesTo) {
    EXPECT_THAT(readelf("--dyn-syms", HX_RECIPE), HasSubstr("_chk@"));
}
#endif

INSTANTIATE_TEST_SUITE_P(Users, ProgramsTest, testing::Values(HX_STUDIO, HX_EDITOR, HX_REPORT, HX_RECIPE),
                         [](const testing::TestParamInfo<const char*>& program) {
                             const std::string file = program.param;
                             const std::size_t name = file.rfind('/') + 1;
                             return file.substr(name, file.find('.', name) - name);
                         });

TEST(EmptyUnwindEntryTest, IsFound) { EXPECT_THAT(hiddenFunctions(HX_EMPTY_ENTRY), SizeIs(1)); }

}  // namespace
}  // namespace hx
