// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <system_error>

#include "hosting/sentences.h"

namespace hx::hosting {

/// The folder that a file lies in.
[[nodiscard]] std::filesystem::path folderOf(const std::filesystem::path& file);

/// Throws errFail: what has happened to the file, the sentence's %1, and why.
[[noreturn]] void failWith(const automation::Sentence& what, const std::filesystem::path& file,
                           const automation::Sentence& why = sentence::notSaid);
[[noreturn]] void failWith(const automation::Sentence& what, const std::filesystem::path& file,
                           const std::error_code& why);

}  // namespace hx::hosting
