#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace hx::host {

/// The file that a path's links lead to, also when it does not exist; the path itself without links.
[[nodiscard]] std::filesystem::path behindLinks(std::filesystem::path path);

/// The folder that a file lies in.
[[nodiscard]] std::filesystem::path folderOf(const std::filesystem::path& file);

/// Throws errFail: what has happened to the file ("cannot be read"), and why.
[[noreturn]] void failWith(std::string_view what, const std::filesystem::path& file, const std::string& why = {});
[[noreturn]] void failWith(std::string_view what, const std::filesystem::path& file, const std::error_code& why);

}  // namespace hx::host
