// SPDX-License-Identifier: MIT
#include "torture/faults/power.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "torture/faults/plan.h"

// Only system calls of its own: those of the C library come back here.
namespace hx::faults {

namespace {

constexpr std::size_t sector = 512;

int openFile(const std::string& path, int flags) {
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path.c_str(), flags | O_CLOEXEC));
}

void put(int file, const std::string& bytes, off_t offset) {
    syscall(SYS_pwrite64, file, bytes.data(), bytes.size(), offset);
}

void resize(int file, off_t size) { syscall(SYS_ftruncate, file, size); }

off_t sizeOf(int file) {
    struct stat status {};
    return fstat(file, &status) == 0 ? status.st_size : 0;
}

std::string contents(int file) {
    std::string bytes(static_cast<std::size_t>(sizeOf(file)), '\0');
    const ssize_t count = pread(file, bytes.data(), bytes.size(), 0);
    bytes.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    return bytes;
}

std::string pathOf(int file) {
    char path[4096];
    const ssize_t length = readlink(("/proc/self/fd/" + std::to_string(file)).c_str(), path, sizeof path);
    return {path, static_cast<std::size_t>(std::max<ssize_t>(length, 0))};
}

std::string folderOf(const std::string& path) { return path.substr(0, path.rfind('/')); }

bool isFolder(int file) {
    struct stat status {};
    return fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

void Power::opens(const std::string& path, bool truncates) {
    const std::lock_guard lock(mutex_);
    const int file = openFile(path, O_RDWR);
    if (file < 0) return;
    File& tracked = track(file, false);
    if (truncates) tracked.changes.push_back({0, {}, true});
}

void Power::made(const std::string& path) {
    const std::lock_guard lock(mutex_);
    if (const int file = openFile(path, O_RDWR); file >= 0) track(file, true);
    names_.push_back({path, {}, {}});
}

// The handle stays open for as long as the process lives: closing it would give up the process's locks on the file.
Power::File& Power::track(int file, bool isNew) {
    struct stat status {};
    fstat(file, &status);
    const auto [place, added] = files_.try_emplace(Identity{status.st_dev, status.st_ino});
    if (!added) return place->second;
    place->second.handle = file;
    if (!isNew) place->second.durable = contents(file);
    return place->second;
}

Power::File* Power::known(int file) {
    struct stat status {};
    if (fstat(file, &status) != 0) return nullptr;
    const auto found = files_.find({status.st_dev, status.st_ino});
    if (found != files_.end()) return &found->second;
    // One that has had no name until now.
    const int handle = openFile("/proc/self/fd/" + std::to_string(file), O_RDWR);
    return handle < 0 ? nullptr : &track(handle, true);
}

void Power::wrote(int file, off_t offset, std::size_t bytes) {
    const std::lock_guard lock(mutex_);
    File* const changed = known(file);
    if (changed == nullptr) return;
    for (std::size_t done = 0; done < bytes; done += sector) {
        std::string part(std::min(sector, bytes - done), '\0');
        const off_t at = offset + static_cast<off_t>(done);
        if (pread(changed->handle, part.data(), part.size(), at) > 0) changed->changes.push_back({at, part, false});
    }
}

void Power::resized(int file) {
    const std::lock_guard lock(mutex_);
    if (File* const changed = known(file)) changed->changes.push_back({sizeOf(file), {}, true});
}

void Power::synced(int file) {
    const std::lock_guard lock(mutex_);
    if (isFolder(file)) {
        std::erase_if(names_, [folder = pathOf(file)](const Name& name) { return folderOf(name.path) == folder; });
    } else if (File* const changed = known(file)) {
        changed->durable = contents(changed->handle);
        changed->changes.clear();
    }
}

std::string Power::keep(const std::string& path) {
    const std::string kept = plan().side() + "/" + std::to_string(++kept_);
    const bool linked = syscall(SYS_linkat, AT_FDCWD, path.c_str(), AT_FDCWD, kept.c_str(), 0) == 0;
    return linked ? kept : std::string();
}

void Power::removes(const std::string& path) {
    const std::lock_guard lock(mutex_);
    if (std::string kept = keep(path); !kept.empty()) names_.push_back({path, std::move(kept), {}});
}

void Power::renames(const std::string& from, const std::string& to) {
    const std::lock_guard lock(mutex_);
    names_.push_back({to, keep(to), from});
}

void Power::takeBackNames(std::size_t count) {
    for (; names_.size() > count; names_.pop_back()) {
        const Name& name = names_.back();
        const auto rename = [](const std::string& from, const std::string& to) {
            syscall(SYS_renameat2, AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), 0);
        };
        if (!name.from.empty()) rename(name.path, name.from);
        else if (name.kept.empty()) syscall(SYS_unlinkat, AT_FDCWD, name.path.c_str(), 0);
        if (!name.kept.empty()) rename(name.kept, name.path);
    }
}

bool Power::survives() {
    chance_ = chance_ * 6364136223846793005U + 1442695040888963407U;
    return (chance_ >> 33U & 1U) != 0;
}

void Power::restore(const File& file) const {
    resize(file.handle, 0);
    put(file.handle, file.durable, 0);
}

void Power::cut() {
    const Inside inside;
    const std::lock_guard lock(mutex_);
    const std::string& keep = plan().keep();
    const bool chooses = !keep.empty() && keep != "none" && keep != "names";
    if (chooses) chance_ = std::strtoull(keep.c_str(), nullptr, 10);
    for (auto& [identity, file] : files_) {
        restore(file);
        for (const Change& change : file.changes) {
            if (!chooses || !survives()) continue;
            if (change.resizes) resize(file.handle, change.offset);
            else put(file.handle, change.bytes, change.offset);
        }
    }
    // A disk keeps the order of its names: an early part of the changes survives.
    std::size_t names = keep == "names" ? names_.size() : 0;
    while (chooses && names < names_.size() && survives()) ++names;
    takeBackNames(names);
    kill(getpid(), SIGKILL);
    _exit(1);
}

Power& power() {
    static Power& made = *new Power;
    return made;
}

}  // namespace hx::faults
