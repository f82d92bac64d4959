// SPDX-License-Identifier: MIT
#include "hosting/windows_path.h"

#include <windows.h>

namespace hx::hosting {

namespace {

constexpr std::size_t longest = MAX_PATH - 20;  // of folders: a name of the old kind must still fit behind
const std::wstring share = L"\\\\", device = L"\\\\.\\", unchanged = L"\\\\?\\", unchangedShare = L"\\\\?\\UNC\\";

}  // namespace

std::wstring wholeName(const std::filesystem::path& path) {
    std::wstring name(MAX_PATH, L'\0');
    for (;;) {
        const DWORD size = GetFullPathNameW(path.c_str(), static_cast<DWORD>(name.size()), name.data(), nullptr);
        const bool fits = size < name.size();
        name.resize(size);
        if (fits) return name;
    }
}

std::wstring longName(const std::filesystem::path& path) {
    const std::wstring whole = wholeName(path);
    if (whole.size() < longest || whole.starts_with(device) || whole.starts_with(unchanged)) return path.native();
    return whole.starts_with(share) ? unchangedShare + whole.substr(share.size()) : unchanged + whole;
}

}  // namespace hx::hosting
