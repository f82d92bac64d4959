// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace hx::host {

/// How the host writes paths: its separator joins, "\" and "/" both split.
class PathStyle {
  public:
    explicit PathStyle(char separator) noexcept : separator_(separator) {}
    [[nodiscard]] char separator() const noexcept { return separator_; }
    /// folder + separator + name; an empty folder gives separator + name.
    [[nodiscard]] std::string join(std::string_view folder, std::string_view name) const;
    /// Up to and including the last separator of either kind; empty when there is none.
    [[nodiscard]] static std::string_view folderOf(std::string_view path) noexcept;
    /// Behind the last separator of either kind.
    [[nodiscard]] static std::string_view fileOf(std::string_view path) noexcept;

  private:
    char separator_;
};

}  // namespace hx::host
