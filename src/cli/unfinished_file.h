// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace hx::cli {

/// While it lives, what ends the program from outside (Ctrl+C, the request to end, a closed terminal) first takes the
/// file away, and its journal if it is a database. One at a time.
class UnfinishedFile {
  public:
    explicit UnfinishedFile(const std::filesystem::path& path);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

  private:
    std::filesystem::path path_, journal_;
};

}  // namespace hx::cli
