// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <set>
#include <string>

#include "host/system_services.h"
#include "hosting/ini_document.h"

namespace hx::hosting {

/// INI files in the file system. A new file has lines ending in CR LF. Each write replaces the file in one step; it
/// keeps all other lines, comments and line ends as they are (ini_document.h), and what other programs write meanwhile.
///
/// A file of which a text could not be read, so that its fallback was given, is not written until that text has been
/// read: the fallbacks are not to stand where the user's own texts do.
class IniTextFile : public host::IniFile {
  public:
    [[nodiscard]] std::string read(std::string_view section, std::string_view key, std::string_view fallback,
                                   const std::string& path) const override;
    void writeAll(std::string_view section, std::span<const host::IniText> texts, const std::string& path) override;

  private:
    using Place = std::array<std::string, 3>;  ///< file, section, key
    /// The file that was read last, so that reading key after key takes it apart once.
    struct Known {
        std::string path, bytes;
        IniDocument document;
    };
    void requireRead(const std::string& path) const;

    mutable std::optional<Known> known_;
    mutable std::set<Place> unread_;
};

}  // namespace hx::hosting
