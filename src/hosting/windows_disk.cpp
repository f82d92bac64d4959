// SPDX-License-Identifier: MIT
#include <algorithm>
#include <memory>
#include <windows.h>

#include "hosting/system_disk.h"
#include "hosting/windows_path.h"

namespace hx::hosting {

namespace {

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD quotaExceeded = 1295;  // which the headers lack
constexpr int patience = 100;          // times that a rename is tried, and milliseconds between two
constexpr DWORD pause = 10;

HANDLE fileOf(Disk::Handle handle) { return reinterpret_cast<HANDLE>(handle); }
Disk::Handle handleOf(HANDLE file) { return reinterpret_cast<Disk::Handle>(file); }

// As the condition that it is, where it is one: the same codes as on other systems.
std::error_code codeOf(DWORD number) {
    if (number == ERROR_DISK_FULL || number == ERROR_HANDLE_DISK_FULL || number == quotaExceeded) {
        return std::make_error_code(std::errc::no_space_on_device);  // a quota is a disk that is full
    }
    const std::error_code code(static_cast<int>(number), std::system_category());
    const std::error_condition condition = code.default_error_condition();
    return condition.category() == std::generic_category() ? std::error_code(condition.value(), std::generic_category())
                                                           : code;
}

std::error_code result(BOOL done) { return done ? std::error_code() : codeOf(GetLastError()); }

// Who may do what must not change with the contents.
std::vector<std::byte> permissionsOf(const Disk::Path& path) {
    constexpr SECURITY_INFORMATION asked = DACL_SECURITY_INFORMATION;
    const std::wstring name = longName(path);
    DWORD size = 0;
    GetFileSecurityW(name.c_str(), asked, nullptr, 0, &size);
    std::vector<std::byte> descriptor(size);
    if (size == 0 || !GetFileSecurityW(name.c_str(), asked, descriptor.data(), size, &size)) descriptor.clear();
    return descriptor;
}

// A scanner or an index looks into new files for a moment, and while it does nothing can take their place.
bool isBusy(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED || error == ERROR_LOCK_VIOLATION;
}

std::error_code move(const Disk::Path& from, const Disk::Path& to, DWORD how) {
    const std::wstring source = longName(from), target = longName(to);
    for (int i = 0;; ++i) {
        if (MoveFileExW(source.c_str(), target.c_str(), how | MOVEFILE_WRITE_THROUGH)) return {};
        const DWORD error = GetLastError();
        if (!isBusy(error) || i == patience) return codeOf(error);
        Sleep(pause);
    }
}

}  // namespace

std::error_code SystemDisk::create(const Path& path, const Path& like, Handle& file) const {
    std::vector<std::byte> permissions = permissionsOf(like);
    SECURITY_ATTRIBUTES attributes{sizeof attributes, permissions.data(), FALSE};
    const HANDLE made =
        CreateFileW(longName(path).c_str(), GENERIC_WRITE, shareAll, permissions.empty() ? nullptr : &attributes,
                    CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (made == INVALID_HANDLE_VALUE) return codeOf(GetLastError());
    file = handleOf(made);
    return {};
}

std::error_code SystemDisk::write(Handle file, std::string_view bytes) const {
    constexpr std::size_t most = std::size_t{1} << 30;
    while (!bytes.empty()) {
        const auto asked = static_cast<DWORD>(std::min(bytes.size(), most));
        DWORD written = 0;
        if (!WriteFile(fileOf(file), bytes.data(), asked, &written, nullptr)) return codeOf(GetLastError());
        bytes.remove_prefix(written);
    }
    return {};
}

std::error_code SystemDisk::sync(Handle file) const { return result(FlushFileBuffers(fileOf(file))); }

void SystemDisk::close(Handle handle) const noexcept {
    if (handle != none) CloseHandle(fileOf(handle));
}

std::error_code SystemDisk::rename(const Path& from, const Path& to) const {
    return move(from, to, MOVEFILE_REPLACE_EXISTING);
}

std::error_code SystemDisk::renameNew(const Path& from, const Path& to) const { return move(from, to, 0); }

// Each rename has been written through.
std::error_code SystemDisk::syncFolder(const Path&) const { return {}; }

void SystemDisk::removeAbandoned(const Path& path) const noexcept {
    constexpr DWORD how = FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT;
    // Who writes it has not asked for others to keep from it; this does, and fails while it is written.
    const HANDLE file = CreateFileW(longName(path).c_str(), DELETE, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, how, nullptr);
    if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
}

std::vector<std::string> SystemDisk::names(const Path& folder) const {
    std::vector<std::string> names;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(longName(folder / L"*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    const auto close = [](void* opened) { FindClose(opened); };
    const std::unique_ptr<void, decltype(close)> opened(search, close);
    do {
        names.push_back(Path(found.cFileName).string());
    } while (FindNextFileW(search, &found));
    return names;
}

std::optional<Disk::Handle> SystemDisk::tryLock(const Path& folder) const {
    const std::wstring name = longName(folder / L".hxlock");
    const HANDLE file = CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (file != INVALID_HANDLE_VALUE) return handleOf(file);
    const DWORD error = GetLastError();
    // One that is just being given up can be seen and not be opened.
    const bool isTaken = error == ERROR_SHARING_VIOLATION ||
                         (error == ERROR_ACCESS_DENIED && GetFileAttributesW(name.c_str()) != INVALID_FILE_ATTRIBUTES);
    return isTaken ? std::nullopt : std::optional(none);
}

const Disk& systemDisk() noexcept {
    static const SystemDisk disk;
    return disk;
}

}  // namespace hx::hosting
