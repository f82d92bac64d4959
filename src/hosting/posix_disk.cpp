// SPDX-License-Identifier: MIT
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <stdio.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "hosting/system_disk.h"

namespace hx::hosting {

namespace {

std::error_code codeOf(int number) {
    return {number == EDQUOT ? ENOSPC : number, std::generic_category()};  // a quota is a disk that is full
}

std::error_code result(int returned) { return returned == 0 ? std::error_code() : codeOf(errno); }

int fileOf(Disk::Handle handle) { return static_cast<int>(handle); }

// Who may do what must not change with the contents. Where the group cannot be kept, another must not gain its rights.
void takeAttributes(int file, const struct stat& old) {
    mode_t mode = old.st_mode & 0777;
    const bool kept =
        fchown(file, old.st_uid, old.st_gid) == 0 || fchown(file, static_cast<uid_t>(-1), old.st_gid) == 0;
    if (!kept) mode = (mode & 0707) | (mode & 07) << 3;
    (void)fchmod(file, mode);  // not every file system has permissions
}

// A file in use is locked at one byte far behind its end: a database that it holds locks other bytes, and a network
// file system lets nobody write where another has locked.
bool lockMark(int file, short kind) {
    constexpr off_t mark = off_t{1} << 62;
    struct flock lock {};
    lock.l_type = kind;
    lock.l_whence = SEEK_SET;
    lock.l_start = mark;
    lock.l_len = 1;
    return fcntl(file, F_OFD_SETLK, &lock) == 0;
}

// Somebody who clears away can have come between making the file and locking it.
bool takeForUse(int file) {
    struct stat made {};
    if (!lockMark(file, F_WRLCK) && (errno == EAGAIN || errno == EACCES)) return false;
    return fstat(file, &made) == 0 && made.st_nlink > 0;
}

std::error_code syncNumber(int file) {
    if (fsync(file) == 0 || errno == EINVAL || errno == ENOSYS) return {};  // what cannot be synced needs none
    return codeOf(errno);
}

}  // namespace

std::error_code SystemDisk::create(const Path& path, const Path& like, Handle& file) const {
    struct stat old {};
    const bool hasOld = stat(like.c_str(), &old) == 0;
    const int made =
        open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, hasOld ? old.st_mode & 0777 : 0666);
    if (made < 0) return codeOf(errno);
    if (!takeForUse(made)) {
        unlink(path.c_str());
        ::close(made);
        return codeOf(EEXIST);
    }
    if (hasOld) takeAttributes(made, old);
    file = made;
    return {};
}

std::error_code SystemDisk::write(Handle file, std::string_view bytes) const {
    while (!bytes.empty()) {
        const ssize_t written = ::write(fileOf(file), bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return codeOf(errno);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return {};
}

std::error_code SystemDisk::sync(Handle file) const { return syncNumber(fileOf(file)); }

void SystemDisk::close(Handle handle) const noexcept {
    if (handle != none) ::close(fileOf(handle));
}

std::error_code SystemDisk::rename(const Path& from, const Path& to) const {
    return result(::rename(from.c_str(), to.c_str()));
}

// Not every file system can refuse to replace; those that cannot have hard links.
std::error_code SystemDisk::renameNew(const Path& from, const Path& to) const {
    const auto code = result(renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE));
    if (code.value() != EINVAL && code.value() != ENOSYS) return code;
    if (link(from.c_str(), to.c_str()) != 0) return codeOf(errno);
    unlink(from.c_str());
    return {};
}

std::error_code SystemDisk::syncFolder(const Path& folder) const {
    const int opened = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened < 0) return {};  // one may write in a folder that one may not list
    const std::error_code code = syncNumber(opened);
    ::close(opened);
    return code;
}

void SystemDisk::removeAbandoned(const Path& path) const noexcept {
    const int file = open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) return;
    if (lockMark(file, F_RDLCK)) unlink(path.c_str());
    ::close(file);
}

std::vector<std::string> SystemDisk::names(const Path& folder) const {
    const auto close = [](DIR* opened) { closedir(opened); };
    const std::unique_ptr<DIR, decltype(close)> opened(opendir(folder.c_str()), close);
    std::vector<std::string> names;
    if (!opened) return names;
    while (const dirent* entry = readdir(opened.get())) names.emplace_back(entry->d_name);
    return names;
}

std::optional<Disk::Handle> SystemDisk::tryLock(const Path& folder) const {
    const int opened = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened < 0) return none;
    if (flock(opened, LOCK_EX | LOCK_NB) == 0) return opened;
    const bool taken = errno == EWOULDBLOCK;
    ::close(opened);
    return taken ? std::nullopt : std::optional(none);
}

const Disk& systemDisk() noexcept {
    static const SystemDisk disk;
    return disk;
}

}  // namespace hx::hosting
