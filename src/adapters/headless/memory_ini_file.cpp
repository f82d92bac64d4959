#include "adapters/headless/memory_ini_file.h"

namespace hx::headless {

std::string MemoryIniFile::read(std::string_view section, std::string_view key, std::string_view fallback,
                                const std::string& path) const {
    const auto found = files_.find(path);
    if (found == files_.end()) return std::string(fallback);
    return found->second.text(section, key).value_or(std::string(fallback));
}

void MemoryIniFile::write(std::string_view section, std::string_view key, std::string_view text,
                          const std::string& path) {
    if (error_) throw *error_;
    host::IniDocument changed = exists(path) ? files_.at(path) : host::IniDocument();
    changed.setText(section, key, text);
    files_[path] = std::move(changed);
}

std::string MemoryIniFile::bytes(const std::string& path) const { return exists(path) ? files_.at(path).bytes() : ""; }

}  // namespace hx::headless
