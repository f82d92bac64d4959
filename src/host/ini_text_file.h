#pragma once

#include <optional>
#include <string>

#include "host/ini_document.h"
#include "host/system_services.h"

namespace hx::host {

/// INI files in the file system. A new file has lines ending in CR LF. Each write replaces the file in one step; it
/// keeps all other lines, comments and line ends as they are (ini_document.h).
class IniTextFile : public IniFile {
  public:
    [[nodiscard]] std::string read(std::string_view section, std::string_view key, std::string_view fallback,
                                   const std::string& path) const override;
    void write(std::string_view section, std::string_view key, std::string_view text, const std::string& path) override;

  private:
    /// The file that was read last, so that reading key after key takes it apart once.
    struct Known {
        std::string path, bytes;
        IniDocument document;
    };
    mutable std::optional<Known> known_;
};

}  // namespace hx::host
