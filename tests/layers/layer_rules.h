// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace hx::layers {

/// What a source file may not have: reads "recipe/schema.cpp:3: ...".
using Finding = std::string;

/// The findings on the includes of one file.
/// `path` is the file's path below src/ with "/" as separator, `text` its content.
std::vector<Finding> wrongIncludes(std::string_view path, std::string_view text);

/// One finding when the file has more than 400 lines and nobody has had a second look at it: it then holds one concept
/// all the same, and says so by a line "// Long: " and why. Else none.
std::vector<Finding> tooManyLines(std::string_view path, std::string_view text);

/// The places of a file of the windows that may show a text of the user's as HTML: a QLabel that is no PlainLabel, a
/// tool tip that is not made by plainToolTip or titledToolTip.
std::vector<Finding> textsAsHtml(std::string_view path, std::string_view text);

/// The places where what() of an exception could reach the user: it knows no language, and says "std::bad_alloc".
std::vector<Finding> rawExceptions(std::string_view path, std::string_view text);

}  // namespace hx::layers
