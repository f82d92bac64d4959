// SPDX-License-Identifier: MIT
#include "bench/work_copy.h"

#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <unistd.h>

namespace hx::bench {

namespace {

// What is written back later would be paid for by the run.
void writeToDisk(const std::string& path) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const bool written = file >= 0 && ::fsync(file) == 0;
    if (file >= 0) ::close(file);
    if (!written) throw std::runtime_error("the copy of the project cannot be written");
}

}  // namespace

WorkCopy::WorkCopy(const Project& original) : original_(original), copy_(original) {
    copy_.path += ".run-" + std::to_string(::getpid()) + ".hxs";
}

WorkCopy::~WorkCopy() {
    std::error_code ignored;
    std::filesystem::remove(copy_.path, ignored);
}

void WorkCopy::renew() {
    std::filesystem::copy_file(original_.path, copy_.path, std::filesystem::copy_options::overwrite_existing);
    writeToDisk(copy_.path);
}

}  // namespace hx::bench
