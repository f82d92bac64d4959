// SPDX-License-Identifier: MIT
#include "macros/folder_ini_file.h"

namespace hx::macros {

std::string FolderIniFile::read(std::string_view section, std::string_view key, std::string_view fallback,
                                const std::string& path) const {
    return files_.read(section, key, fallback, allowed_.toReplace(path));
}

void FolderIniFile::writeAll(std::string_view section, std::span<const host::IniText> texts, const std::string& path) {
    files_.writeAll(section, texts, allowed_.toReplace(path));
}

}  // namespace hx::macros
