// SPDX-License-Identifier: MIT
#include "adapters/headless/memory_ini_file.h"

namespace hx::headless {

std::string MemoryIniFile::read(std::string_view section, std::string_view key, std::string_view fallback,
                                const std::string& path) const {
    const auto found = files_.find(path);
    if (found == files_.end()) return std::string(fallback);
    return found->second.text(section, key).value_or(std::string(fallback));
}

void MemoryIniFile::writeAll(std::string_view section, std::span<const host::IniText> texts, const std::string& path) {
    ++writes_;
    if (error_) throw *error_;
    hosting::IniDocument changed = exists(path) ? files_.at(path) : hosting::IniDocument();
    const auto refused = changed.setTexts(section, texts);
    if (!changed.bytes().empty()) files_[path] = std::move(changed);
    if (refused) throw *refused;
}

std::string MemoryIniFile::bytes(const std::string& path) const { return exists(path) ? files_.at(path).bytes() : ""; }

}  // namespace hx::headless
