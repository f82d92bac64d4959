// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "automation/error.h"

namespace hx::hosting {

/// One line of a text file, without its end.
struct Line {
    std::string file;
    int number = 0;
    std::string text;

    /// Throws an error that names the file and the line.
    [[noreturn]] void fail(const std::string& problem) const;
    [[noreturn]] void fail(const automation::Sentence& problem,
                           std::initializer_list<std::string_view> names = {}) const;
};

/// A UTF-8 file. Throws automation::Error when it cannot be read, has a byte order mark or is not UTF-8.
[[nodiscard]] std::string readText(const std::string& path);
/// The same line by line; they end with LF or CRLF.
[[nodiscard]] std::vector<Line> readLines(const std::string& path);

}  // namespace hx::hosting
