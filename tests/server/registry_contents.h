// SPDX-License-Identifier: MIT
#pragma once

#include <set>
#include <string>
#include <windows.h>

namespace hx::server {

/// All that stands below a key: the keys, and the values with their kinds and bytes.
class RegistryContents {
  public:
    RegistryContents(HKEY root, const std::wstring& key) { read(root, key); }

    [[nodiscard]] const std::set<std::wstring>& entries() const noexcept { return entries_; }

  private:
    void read(HKEY root, const std::wstring& key) {
        HKEY opened = nullptr;
        if (RegOpenKeyExW(root, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return;
        entries_.insert(key);
        wchar_t name[512];
        DWORD size = 512;
        for (DWORD i = 0; RegEnumKeyExW(opened, i, name, &size, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
             ++i) {
            read(root, key + L"\\" + name);
            size = 512;
        }
        BYTE data[4096];
        DWORD kind = 0, bytes = sizeof data;
        size = 512;
        for (DWORD i = 0; RegEnumValueW(opened, i, name, &size, nullptr, &kind, data, &bytes) == ERROR_SUCCESS; ++i) {
            std::wstring value(data, data + bytes);
            entries_.insert(key + L"@" + name + L"=" + std::to_wstring(kind) + L":" + value);
            size = 512;
            bytes = sizeof data;
        }
        RegCloseKey(opened);
    }

    std::set<std::wstring> entries_;
};

}  // namespace hx::server
