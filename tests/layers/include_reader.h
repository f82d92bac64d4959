// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace hx::layers {

/// One `#include` of a source file.
struct Include {
    int line = 0;           ///< counted from 1
    std::string name;       ///< what stands between the brackets or quotation marks
    bool inQuotes = false;  ///< false for angle brackets
};

/// The includes of a source text in their order, those in comments left out.
std::vector<Include> includesOf(std::string_view text);

/// The number of lines; a last line without a line end counts.
int lineCount(std::string_view text);

}  // namespace hx::layers
