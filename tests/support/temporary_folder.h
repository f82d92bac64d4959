// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace hx::support {

/// A new empty folder that is removed with all it holds.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::string& path() const noexcept { return path_; }
    [[nodiscard]] std::string file(std::string_view name) const { return path_ + "/" + std::string(name); }

  private:
    std::string path_;
};

}  // namespace hx::support
