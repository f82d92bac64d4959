// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace hx::com {

/// What a script prints that the system's own program for scripts runs; it must end with 0.
inline std::string outputOfScript(const std::filesystem::path& script, const std::wstring& argument = {}) {
    std::filesystem::path file = std::filesystem::absolute(script);
    std::wstring command = L"cscript //Nologo \"" + file.make_preferred().wstring() + L"\"";
    if (!argument.empty()) command += L" \"" + argument + L"\"";
    const auto close = [](std::FILE* pipe) { EXPECT_EQ(_pclose(pipe), 0); };
    const std::unique_ptr<std::FILE, decltype(close)> pipe(_wpopen(command.c_str(), L"rt"), close);
    std::string text;
    for (int c = 0; pipe && (c = std::fgetc(pipe.get())) != EOF;) text += static_cast<char>(c);
    return text;
}

}  // namespace hx::com
