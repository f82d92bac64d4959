// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace hx::support {

/// A symbolic link to a file or folder that is there, as long as it lives.
class Link {
  public:
    Link(const std::filesystem::path& target, const std::filesystem::path& link);
    ~Link();
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;

  private:
    std::filesystem::path link_;
};

}  // namespace hx::support
