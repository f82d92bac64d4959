// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "hosting/disk.h"

namespace hx::hosting {

/// A path of the editor's texts (UTF-8) as a path of the file system.
[[nodiscard]] std::filesystem::path fileSystemPath(std::string_view path);

/// The whole file; nothing when it is missing. Throws automation::Error when it is there and cannot be read.
[[nodiscard]] std::optional<std::string> readFile(const std::filesystem::path& path);

/// The first bytes of a file, at most so many; nothing of what is no file or cannot be opened.
[[nodiscard]] std::string startOf(const std::filesystem::path& path, std::size_t length);

/// Replaces the contents in one step, as FileReplacement does.
void replaceFile(const std::filesystem::path& path, std::string_view bytes, const Disk& disk = systemDisk());

/// Replaces the contents by what `change` makes of them; a missing file counts as empty. No other program changes the
/// file meanwhile. What is the same afterwards is not written.
using FileChange = std::function<std::string(std::string_view bytes)>;
void changeFile(const std::filesystem::path& path, const FileChange& change, const Disk& disk = systemDisk());

}  // namespace hx::hosting
