// SPDX-License-Identifier: MIT
#include <cerrno>
#include <filesystem>
#include <stdlib.h>
#include <system_error>
#include <unistd.h>

#include "support/temporary_folder.h"

namespace hx::support {

namespace {

// In memory where the system offers it: the editor writes durably, and a disk takes milliseconds for that.
std::filesystem::path parentFolder() {
    const std::filesystem::path memory = "/dev/shm";
    return access(memory.c_str(), W_OK) == 0 ? memory : std::filesystem::temp_directory_path();
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
    path_ = (parentFolder() / "hx-test-XXXXXX").string();
    if (mkdtemp(path_.data()) == nullptr) throw std::system_error(errno, std::generic_category(), path_);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace hx::support
