#pragma once

#include <filesystem>
#include <functional>

#include "host/system_services.h"

namespace hx::macros {

/// The INI files of one folder, in which relative paths lie: a macro can name any file to the editor's settings, and
/// must not reach others by them. Projects are no INI files. Other paths throw errFail.
class FolderIniFile : public host::IniFile {
  public:
    /// The files are lent. `folder` is asked each time; an empty path allows no file.
    FolderIniFile(host::IniFile& files, std::function<std::filesystem::path()> folder)
        : files_(files), folder_(std::move(folder)) {}

    [[nodiscard]] std::string read(std::string_view section, std::string_view key, std::string_view fallback,
                                   const std::string& path) const override;
    void writeAll(std::string_view section, std::span<const host::IniText> texts, const std::string& path) override;

  private:
    [[nodiscard]] std::string allowed(const std::string& path) const;

    host::IniFile& files_;
    std::function<std::filesystem::path()> folder_;
};

}  // namespace hx::macros
