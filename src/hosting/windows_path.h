// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace hx::hosting {

/// The whole name of what Windows takes the path for: without "." and "..", without the dots and blanks at its end that
/// do not count, and beginning with "\\.\" for a device. Empty when it is no name.
[[nodiscard]] std::wstring wholeName(const std::filesystem::path& path);

/// For calls of Windows: a name of any length, which wants to be whole and with a mark.
[[nodiscard]] std::wstring longName(const std::filesystem::path& path);

}  // namespace hx::hosting
