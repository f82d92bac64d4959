// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>

#include "automation/error.h"
#include "host/system_services.h"
#include "hosting/ini_document.h"

namespace hx::headless {

/// INI files that live as long as their object, by path.
class MemoryIniFile : public host::IniFile {
  public:
    [[nodiscard]] std::string read(std::string_view section, std::string_view key, std::string_view fallback,
                                   const std::string& path) const override;
    void writeAll(std::string_view section, std::span<const host::IniText> texts, const std::string& path) override;

    [[nodiscard]] bool exists(const std::string& path) const { return files_.contains(path); }
    /// The whole file; empty when there is none.
    [[nodiscard]] std::string bytes(const std::string& path) const;
    void setBytes(const std::string& path, std::string_view bytes) { files_[path] = hosting::IniDocument(bytes); }
    /// From now on every write throws this error; given nothing, it works again.
    void failWritesWith(std::optional<automation::Error> error) { error_ = std::move(error); }
    /// How often a file was to be written.
    [[nodiscard]] std::int32_t writes() const noexcept { return writes_; }

  private:
    std::map<std::string, hosting::IniDocument> files_;
    std::optional<automation::Error> error_;
    std::int32_t writes_ = 0;
};

}  // namespace hx::headless
