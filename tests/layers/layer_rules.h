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

/// One finding when the file has more than 400 lines, else none.
std::vector<Finding> tooManyLines(std::string_view path, std::string_view text);

}  // namespace hx::layers
