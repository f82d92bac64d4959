// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/system_services.h"
#include "hosting/ini_document.h"

namespace hx::hosting {

/// The registry as a text file that a person can read: a section a key, without "\" at its ends, and a line a value:
///
///   [SOFTWARE\Tarnwell\Helvix\4.0]
///   LCID=dword:1031
///   Common="C:\Shared"
///
/// A number stands in decimal behind "dword:"; a text between quotes, without escapes. A value written by hand without
/// either is a text, and a number where one is asked for and it is a whole one. A value of the other kind counts as
/// missing. The file is read at each access and changed in one step, so several processes may share it and lose
/// nothing.
class RegistryFile : public host::Registry {
  public:
    /// The file may be missing: it is then empty, and made by the first write, its folders too.
    explicit RegistryFile(std::string path) : path_(std::move(path)) {}

    [[nodiscard]] std::string readString(std::string_view key, std::string_view value,
                                         std::string_view fallback = {}) const override;
    [[nodiscard]] std::int32_t readNumber(std::string_view key, std::string_view value,
                                          std::int32_t fallback) const override;
    void writeString(std::string_view key, std::string_view value, std::string_view data) override;
    void writeNumber(std::string_view key, std::string_view value, std::int32_t data) override;

  private:
    [[nodiscard]] IniDocument document() const;
    [[nodiscard]] std::string stored(std::string_view key, std::string_view value) const;
    void store(std::string_view key, std::string_view value, const std::string& text);
    std::string path_;
};

}  // namespace hx::hosting
