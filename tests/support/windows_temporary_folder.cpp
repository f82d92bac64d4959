// SPDX-License-Identifier: MIT
#include <filesystem>
#include <random>

#include "support/temporary_folder.h"

namespace hx::support {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    std::random_device random;
    fs::path folder;
    do {
        folder = fs::temp_directory_path() / ("hx-test-" + std::to_string(random()));
    } while (!fs::create_directory(folder));
    path_ = folder.generic_string();
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

}  // namespace hx::support
