// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>

namespace hx::bench {

/// A folder for the projects, removed at the end when it is a temporary one.
class ProjectFolder {
  public:
    /// An empty path stands for a temporary folder.
    explicit ProjectFolder(std::string path) : temporary_(path.empty()), path_(std::move(path)) {
        if (temporary_) {
            path_ = (std::filesystem::temp_directory_path() / "hx-bench-XXXXXX").string();
            if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no temporary folder");
        }
        std::filesystem::create_directories(path_);
    }
    ~ProjectFolder() {
        std::error_code ignored;
        if (temporary_) std::filesystem::remove_all(path_, ignored);
    }
    ProjectFolder(const ProjectFolder&) = delete;
    ProjectFolder& operator=(const ProjectFolder&) = delete;

    [[nodiscard]] const std::string& path() const { return path_; }

  private:
    bool temporary_;
    std::string path_;
};

}  // namespace hx::bench
