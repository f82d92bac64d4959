// SPDX-License-Identifier: MIT

/// The calls of the C library by which a program changes files, each counted and, where the plan says so, failing. They
/// go to the system directly; only what is more than a system call is handed on.
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include "torture/faults/next.h"
#include "torture/faults/plan.h"
#include "torture/faults/power.h"

namespace {

using hx::faults::Inside;
using hx::faults::Kind;
using hx::faults::plan;
using hx::faults::Plan;
using hx::faults::power;

// Where blocks of memory are counted these calls ask for none.
bool passes() { return plan().mode() == Plan::Mode::off || plan().mode() == Plan::Mode::memory; }

bool cuts() { return plan().mode() == Plan::Mode::cut; }

std::string pathOf(int file) {
    if (passes()) return {};
    char path[4096];
    const ssize_t length = readlink(("/proc/self/fd/" + std::to_string(file)).c_str(), path, sizeof path);
    return length > 0 ? std::string(path, static_cast<std::size_t>(length)) : std::string();
}

std::string absolute(int folder, const char* path) {
    if (path == nullptr || passes()) return {};
    if (*path == '/') return std::filesystem::path(path).lexically_normal();
    const std::string base = folder == AT_FDCWD ? std::filesystem::current_path().string() : pathOf(folder);
    return std::filesystem::path(base + "/" + path).lexically_normal();
}

/// A call that changes what stands at a path.
class Call {
  public:
    Call(Kind kind, std::string path) : path_(std::move(path)), concerned_(!Inside::any() && plan().concerns(path_)) {
        const Inside inside;
        if (concerned_) error_ = plan().fault(kind, path_);
    }
    /// True, and errno says why, when it must not be made.
    [[nodiscard]] bool fails() const {
        if (error_ != 0) errno = error_;
        return error_ != 0;
    }
    [[nodiscard]] bool watched() const { return concerned_ && cuts(); }
    [[nodiscard]] bool concerned() const { return concerned_; }
    [[nodiscard]] const std::string& path() const { return path_; }

  private:
    std::string path_;
    bool concerned_;
    int error_ = 0;
};

bool exists(const std::string& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0;
}

/// Opening a file so that it can be written; `open` does it and tells whether it went well.
template <class Open>
auto openForWriting(Call& call, bool truncates, const Open& open) {
    const Inside inside;
    const bool isNew = call.watched() && !exists(call.path());
    if (call.watched() && !isNew) power().opens(call.path(), truncates);
    const auto file = open();
    const int error = errno;
    if (isNew && exists(call.path())) power().made(call.path());
    errno = error;
    return file;
}

int openAt(int folder, const char* path, int flags, mode_t mode) {
    const auto open = [=] { return static_cast<int>(syscall(SYS_openat, folder, path, flags, mode)); };
    // A file without a name is of no concern until it gets one.
    if ((flags & O_ACCMODE) == O_RDONLY || (flags & O_TMPFILE) == O_TMPFILE || Inside::any()) return open();
    Call call(Kind::make, absolute(folder, path));
    if (call.fails()) return -1;
    return openForWriting(call, (flags & O_TRUNC) != 0, open);
}

FILE* openStream(const char* name, const char* path, const char* mode) {
    const auto open = [=] { return hx::faults::next<FILE*(const char*, const char*)>(name)(path, mode); };
    const std::string_view how = mode;
    if (how.find_first_of("wa+") == std::string_view::npos || Inside::any()) return open();
    Call call(Kind::make, absolute(AT_FDCWD, path));
    if (call.fails()) return nullptr;
    return openForWriting(call, how.starts_with('w'), open);
}

template <class... Arguments>
int openTemporary(const char* name, char* pattern, Arguments... rest) {
    Call call(Kind::make, absolute(AT_FDCWD, pattern));
    if (call.fails()) return -1;
    const Inside inside;
    const int file = hx::faults::next<int(char*, Arguments...)>(name)(pattern, rest...);
    if (file >= 0 && call.watched()) power().made(absolute(AT_FDCWD, pattern));
    return file;
}

template <class Write>
ssize_t writeTo(int file, std::size_t bytes, off_t offset, const Write& write) {
    if (Inside::any()) return write(bytes);
    Call call(Kind::write, pathOf(file));
    if (call.fails()) return -1;
    const Inside inside;
    const ssize_t count = write(call.concerned() ? plan().permitted(bytes) : bytes);
    if (count > 0 && call.watched()) {
        const off_t end = offset >= 0 ? offset + count : lseek(file, 0, SEEK_CUR);
        power().wrote(file, end - count, static_cast<std::size_t>(count));
    }
    return count;
}

int synchronise(long number, int file) {
    const Call call(Kind::sync, pathOf(file) + "/");  // the folder itself counts, too
    if (call.fails()) return -1;
    const Inside inside;
    const int result = static_cast<int>(syscall(number, file));
    if (result == 0 && call.watched()) power().synced(file);
    return result;
}

int resize(int file, off_t size) {
    const Call call(Kind::truncate, pathOf(file));
    if (call.fails()) return -1;
    const Inside inside;
    const int result = static_cast<int>(syscall(SYS_ftruncate, file, size));
    if (result == 0 && call.watched()) power().resized(file);
    return result;
}

int renameAt(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
    const std::string old = absolute(fromFolder, from);
    const Call call(Kind::rename, absolute(toFolder, to));
    if (call.fails()) return -1;
    const Inside inside;
    const bool refused = (flags & RENAME_NOREPLACE) != 0 && exists(call.path());
    if (call.watched() && !refused && exists(old)) power().renames(old, call.path());
    return static_cast<int>(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}

int removeAt(int folder, const char* path, int flags) {
    const Call call(Kind::remove, absolute(folder, path));
    if (call.fails()) return -1;
    const Inside inside;
    if (call.watched()) power().removes(call.path());
    return static_cast<int>(syscall(SYS_unlinkat, folder, path, flags));
}

int linkAt(int fromFolder, const char* from, int toFolder, const char* to, int flags) {
    const Call call(Kind::rename, absolute(toFolder, to));
    if (call.fails()) return -1;
    const Inside inside;
    const int result = static_cast<int>(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
    if (result == 0 && call.watched()) power().linked(call.path());
    return result;
}

// The mode is there when the call may make a file.
mode_t modeIn(int flags, va_list rest) {
    return (flags & (O_CREAT | __O_TMPFILE)) != 0 ? static_cast<mode_t>(va_arg(rest, mode_t)) : mode_t{0};
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const int file = openAt(AT_FDCWD, path, flags, modeIn(flags, rest));
    va_end(rest);
    return file;
}
int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const int file = openAt(AT_FDCWD, path, flags, modeIn(flags, rest));
    va_end(rest);
    return file;
}
int openat(int folder, const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const int file = openAt(folder, path, flags, modeIn(flags, rest));
    va_end(rest);
    return file;
}
int openat64(int folder, const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const int file = openAt(folder, path, flags, modeIn(flags, rest));
    va_end(rest);
    return file;
}
int creat(const char* path, mode_t mode) { return openAt(AT_FDCWD, path, O_CREAT | O_WRONLY | O_TRUNC, mode); }
FILE* fopen(const char* path, const char* mode) { return openStream("fopen", path, mode); }
FILE* fopen64(const char* path, const char* mode) { return openStream("fopen64", path, mode); }
int mkstemp(char* pattern) { return openTemporary("mkstemp", pattern); }
int mkstemp64(char* pattern) { return openTemporary("mkstemp64", pattern); }
int mkostemp(char* pattern, int flags) { return openTemporary("mkostemp", pattern, flags); }
int mkostemp64(char* pattern, int flags) { return openTemporary("mkostemp64", pattern, flags); }

ssize_t write(int file, const void* bytes, size_t count) {
    return writeTo(file, count, -1, [=](size_t part) { return syscall(SYS_write, file, bytes, part); });
}
ssize_t pwrite(int file, const void* bytes, size_t count, off_t at) {
    return writeTo(file, count, at, [=](size_t part) { return syscall(SYS_pwrite64, file, bytes, part, at); });
}
ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t at) { return pwrite(file, bytes, count, at); }
ssize_t writev(int file, const iovec* parts, int count) {
    size_t bytes = 0;
    for (int i = 0; i < count; ++i) bytes += parts[i].iov_len;
    return writeTo(file, bytes, -1, [=](size_t part) {
        const iovec first{parts->iov_base, std::min(part, parts->iov_len)};
        return part < bytes ? syscall(SYS_writev, file, &first, 1) : syscall(SYS_writev, file, parts, count);
    });
}

int fsync(int file) { return synchronise(SYS_fsync, file); }
int fdatasync(int file) { return synchronise(SYS_fdatasync, file); }
int ftruncate(int file, off_t size) noexcept { return resize(file, size); }
int ftruncate64(int file, off64_t size) noexcept { return resize(file, size); }

int rename(const char* from, const char* to) noexcept { return renameAt(AT_FDCWD, from, AT_FDCWD, to, 0); }
int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept {
    return renameAt(fromFolder, from, toFolder, to, 0);
}
int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept {
    return renameAt(fromFolder, from, toFolder, to, flags);
}
int unlink(const char* path) noexcept { return removeAt(AT_FDCWD, path, 0); }
int unlinkat(int folder, const char* path, int flags) noexcept { return removeAt(folder, path, flags); }
int remove(const char* path) noexcept {
    struct stat status {};
    const bool isFolder = lstat(path, &status) == 0 && S_ISDIR(status.st_mode);
    return removeAt(AT_FDCWD, path, isFolder ? AT_REMOVEDIR : 0);
}
int link(const char* from, const char* to) noexcept { return linkAt(AT_FDCWD, from, AT_FDCWD, to, 0); }
int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
    return linkAt(fromFolder, from, toFolder, to, flags);
}

}  // extern "C"
