// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <csignal>
#include <string>

namespace hx::cli {

/// While it lives, a signal that ends the program (Ctrl+C, the request to end, a closed terminal) first takes the file
/// away, and its journal if it is a database. One at a time.
class UnfinishedFile {
  public:
    explicit UnfinishedFile(const std::string& path);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

  private:
    static constexpr std::array signals{SIGINT, SIGTERM, SIGHUP};
    std::string path_, journal_;
    std::array<struct sigaction, signals.size()> before_{};
};

}  // namespace hx::cli
