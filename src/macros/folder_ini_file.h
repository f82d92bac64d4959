// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/lua/macro_files.h"
#include "host/system_services.h"

namespace hx::macros {

/// The INI files that a macro may use: it can name any file to the editor's settings, and must not reach others by
/// them. Projects are no INI files. Other paths throw errFail.
class FolderIniFile : public host::IniFile {
  public:
    /// Both are lent.
    FolderIniFile(host::IniFile& files, const lua::MacroFiles& allowed) : files_(files), allowed_(allowed) {}

    [[nodiscard]] std::string read(std::string_view section, std::string_view key, std::string_view fallback,
                                   const std::string& path) const override;
    void writeAll(std::string_view section, std::span<const host::IniText> texts, const std::string& path) override;

  private:
    host::IniFile& files_;
    const lua::MacroFiles& allowed_;
};

}  // namespace hx::macros
