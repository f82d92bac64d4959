// SPDX-License-Identifier: MIT
#include "hosting/file_lock.h"

#include <thread>

#include "hosting/file_place.h"
#include "hosting/links.h"

namespace hx::hosting {

namespace fs = std::filesystem;

namespace {

using Clock = std::chrono::steady_clock;
constexpr auto pause = std::chrono::milliseconds(2);

fs::file_time_type changeOf(const fs::path& file) {
    std::error_code ignored;
    return fs::last_write_time(file, ignored);
}

}  // namespace

FileLock::FileLock(const fs::path& file, const Disk& disk, std::chrono::milliseconds patience) : disk_(disk) {
    const fs::path target = behindLinks(file);
    auto change = changeOf(target);
    auto since = Clock::now();
    std::optional<Disk::Handle> lock;
    while (!(lock = disk_.tryLock(folderOf(target)))) {
        if (const auto now = changeOf(target); now != change) {
            change = now;
            since = Clock::now();
        }
        if (Clock::now() - since >= patience) failWith(sentence::notWritten, file, sentence::heldByAnother);
        std::this_thread::sleep_for(pause);
    }
    lock_ = *lock;
}

FileLock::~FileLock() { disk_.close(lock_); }

}  // namespace hx::hosting
