#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <string_view>

namespace hx {

/// A folder of its own for a test, removed with all that is in it.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        path_ = std::filesystem::temp_directory_path() / ("hx-test-" + std::to_string(std::random_device{}()));
        std::filesystem::create_directories(path_);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }
    [[nodiscard]] std::string file(std::string_view name) const { return (path_ / name).string(); }

    /// Writes a file of these bytes and gives its path.
    [[nodiscard]] std::string write(std::string_view name, std::string_view bytes) const {
        std::ofstream(path_ / name, std::ios::binary) << bytes;
        return file(name);
    }
    [[nodiscard]] std::string read(std::string_view name) const {
        std::ostringstream bytes;
        bytes << std::ifstream(path_ / name, std::ios::binary).rdbuf();
        return bytes.str();
    }
    [[nodiscard]] std::size_t entries() const {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(path_), {}));
    }

  private:
    std::filesystem::path path_;
};

}  // namespace hx
