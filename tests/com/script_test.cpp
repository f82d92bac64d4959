// SPDX-License-Identifier: MIT
// A host in a scripting language, run by the system's own program for scripts.
#include <cstdio>
#include <filesystem>
#include <gmock/gmock.h>
#include <memory>

#include "server_library.h"

namespace hx::com {
namespace {

namespace fs = std::filesystem;

/// What a program prints; it must end with 0.
std::string outputOf(const std::wstring& command) {
    const auto close = [](std::FILE* pipe) { EXPECT_EQ(_pclose(pipe), 0); };
    const std::unique_ptr<std::FILE, decltype(close)> pipe(_wpopen(command.c_str(), L"rt"), close);
    std::string text;
    for (int c = 0; pipe && (c = std::fgetc(pipe.get())) != EOF;) text += static_cast<char>(c);
    return text;
}

TEST(AScript, UsesOurObjectsAndIsUsedByThem) {
    const Registered registered;
    const std::wstring script = fs::absolute(fs::path(HX_SCRIPTS_FOLDER) / "plant.js").make_preferred().wstring();
    EXPECT_EQ(outputOf(L"cscript //Nologo \"" + script + L"\""), "done\n");
}

}  // namespace
}  // namespace hx::com
