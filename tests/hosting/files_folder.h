// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>

#include "hosting/file_bytes.h"
#include "support/temporary_folder.h"

namespace hx::hosting {

/// A folder of its own for a test, with the files that it needs.
class FilesFolder : public support::TemporaryFolder {
  public:
    /// Writes a file of these bytes and gives its path.
    [[nodiscard]] std::string write(std::string_view name, std::string_view bytes) const {
        std::ofstream(fileSystemPath(file(name)), std::ios::binary) << bytes;
        return file(name);
    }
    [[nodiscard]] std::string read(std::string_view name) const {
        std::ostringstream bytes;
        bytes << std::ifstream(fileSystemPath(file(name)), std::ios::binary).rdbuf();
        return bytes.str();
    }
    [[nodiscard]] std::size_t entries() const {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(path()), {}));
    }
};

}  // namespace hx::hosting
