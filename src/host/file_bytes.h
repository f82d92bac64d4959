#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace hx::host {

/// A path of the editor's texts (UTF-8) as a path of the file system.
[[nodiscard]] std::filesystem::path fileSystemPath(std::string_view path);

/// The whole file; nothing when it is missing. Throws automation::Error when it is there and cannot be read.
[[nodiscard]] std::optional<std::string> readFile(const std::filesystem::path& path);

/// Replaces the contents in one step: a reader, and a crash, sees the old or the new file, never a part. Links are
/// followed and permissions kept. Throws automation::Error when it cannot be written; the old file is then untouched.
void replaceFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace hx::host
