// SPDX-License-Identifier: MIT
#include <windows.h>
#include <winioctl.h>

#include "hosting/links.h"
#include "hosting/windows_path.h"

namespace hx::hosting {

namespace fs = std::filesystem;

namespace {

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// A file or folder that is looked at, not read.
class Opened {
  public:
    /// `how` may ask for the link itself.
    explicit Opened(const fs::path& path, DWORD how = 0)
        : file_(CreateFileW(longName(path).c_str(), 0, shareAll, nullptr, OPEN_EXISTING,
                            FILE_FLAG_BACKUP_SEMANTICS | how, nullptr)),
          error_(file_ != INVALID_HANDLE_VALUE ? ERROR_SUCCESS : GetLastError()) {}
    ~Opened() {
        if (file_ != INVALID_HANDLE_VALUE) CloseHandle(file_);
    }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;

    [[nodiscard]] HANDLE file() const noexcept { return file_; }
    [[nodiscard]] DWORD error() const noexcept { return error_; }

  private:
    HANDLE file_;
    DWORD error_;
};

// Without the mark that Windows puts before it.
fs::path withoutMark(const std::wstring& name) {
    constexpr std::wstring_view mark = L"\\\\?\\", share = L"\\\\?\\UNC\\";
    if (name.starts_with(share)) return L"\\\\" + name.substr(share.size());
    return name.starts_with(mark) ? name.substr(mark.size()) : name;
}

// Empty when Windows does not say.
fs::path nameOf(const Opened& opened) {
    std::wstring name(MAX_PATH, L'\0');
    for (;;) {
        const auto room = static_cast<DWORD>(name.size());
        const DWORD size = GetFinalPathNameByHandleW(opened.file(), name.data(), room, FILE_NAME_NORMALIZED);
        name.resize(size);
        if (size < room) return withoutMark(name);
    }
}

/// What Windows keeps of a symbolic link, as far as it is used; lengths and places are bytes.
struct LinkData {
    ULONG tag;
    USHORT length, unused;
    USHORT targetAt, targetLength, shownAt, shownLength;
    ULONG flags;
    wchar_t names[(MAXIMUM_REPARSE_DATA_BUFFER_SIZE - 20) / sizeof(wchar_t)];
};

// Where a symbolic link leads; empty for everything else.
fs::path targetOf(const fs::path& link) {
    const Opened opened(link, FILE_FLAG_OPEN_REPARSE_POINT);
    LinkData data{};
    DWORD size = 0;
    if (opened.error() != ERROR_SUCCESS ||
        !DeviceIoControl(opened.file(), FSCTL_GET_REPARSE_POINT, nullptr, 0, &data, sizeof data, &size, nullptr) ||
        data.tag != IO_REPARSE_TAG_SYMLINK) {
        return {};
    }
    return std::wstring(data.names + data.shownAt / sizeof(wchar_t), data.shownLength / sizeof(wchar_t));
}

bool isSame(const fs::path& name, const std::wstring& other) {
    return CompareStringOrdinal(name.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_EQUAL;
}

// A colon names a stream in a file, which is the file under another name.
bool namesAFile(const std::wstring& whole) {
    if (whole.starts_with(L"\\\\"))
        return !whole.starts_with(L"\\\\.\\") && !whole.starts_with(L"\\\\?\\") &&
               whole.find(L':') == std::wstring::npos;
    return whole.size() > 2 && whole[1] == L':' && whole.find(L':', 2) == std::wstring::npos;
}

}  // namespace

fs::path behindLinks(fs::path path) {
    constexpr int mostLinks = 40;
    for (int i = 0; i < mostLinks; ++i) {
        if (const Opened opened(path); opened.error() == ERROR_SUCCESS) {
            const fs::path name = nameOf(opened);
            return name.empty() || isSame(name, wholeName(path)) ? path : name;
        }
        const fs::path target = targetOf(path);
        if (target.empty()) break;
        path = path.parent_path() / target;
    }
    return path;
}

fs::path placeOf(const fs::path& path) {
    const std::wstring whole = wholeName(path);
    if (!namesAFile(whole)) return {};
    fs::path there = whole, missing;
    for (;;) {
        const Opened opened(there);
        if (opened.error() == ERROR_SUCCESS) {
            const fs::path name = nameOf(opened);
            return name.empty() || missing.empty() ? name : name / missing;
        }
        const bool isMissing = opened.error() == ERROR_FILE_NOT_FOUND || opened.error() == ERROR_PATH_NOT_FOUND;
        if (!isMissing || !there.has_relative_path() || !targetOf(there).empty()) return {};
        missing = missing.empty() ? there.filename() : there.filename() / missing;
        there = there.parent_path();
    }
}

}  // namespace hx::hosting
