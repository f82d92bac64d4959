// SPDX-License-Identifier: MIT
#include "adapters/windows/system_registry.h"

#include <array>
#include <optional>

#include "adapters/windows/system_failure.h"
#include "hosting/windows_text.h"

namespace hx::windows {

namespace {

using hosting::toWide;

constexpr DWORD ownView = sizeof(void*) == 8 ? RRF_SUBKEY_WOW6464KEY : RRF_SUBKEY_WOW6432KEY;
constexpr DWORD otherView = sizeof(void*) == 8 ? RRF_SUBKEY_WOW6432KEY : RRF_SUBKEY_WOW6464KEY;

bool isMissing(LSTATUS status) { return status == ERROR_FILE_NOT_FOUND || status == ERROR_UNSUPPORTED_TYPE; }

/// Reads a value of some kinds (RRF_RT_...) into `data`, whose `size` bytes become those of the value.
LSTATUS read(const std::wstring& key, const std::wstring& value, DWORD kinds, void* data, DWORD& size) {
    const DWORD room = size;
    const LSTATUS own =
        RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), value.c_str(), kinds | ownView, nullptr, data, &size);
    if (!isMissing(own)) return own;
    size = room;
    return RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), value.c_str(), kinds | otherView, nullptr, data, &size);
}

void requireDone(LSTATUS status) {
    if (status != ERROR_SUCCESS) fail(static_cast<DWORD>(status));
}

void write(std::string_view key, std::string_view value, DWORD kind, const void* data, DWORD size) {
    requireDone(RegSetKeyValueW(HKEY_LOCAL_MACHINE, toWide(key).c_str(), toWide(value).c_str(), kind, data, size));
}

}  // namespace

std::string SystemRegistry::readString(std::string_view key, std::string_view value, std::string_view fallback) const {
    const std::wstring keyName = toWide(key), valueName = toWide(value);
    std::wstring text(MAX_PATH, L'\0');
    for (;;) {
        auto size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
        const LSTATUS status = read(keyName, valueName, RRF_RT_REG_SZ, text.data(), size);
        if (isMissing(status)) return std::string(fallback);
        if (status != ERROR_MORE_DATA) requireDone(status);
        text.resize(size / sizeof(wchar_t));
        if (status == ERROR_SUCCESS) return hosting::toUtf8(text.substr(0, text.find(L'\0')));
    }
}

std::int32_t SystemRegistry::readNumber(std::string_view key, std::string_view value, std::int32_t fallback) const {
    std::int32_t number = 0;
    DWORD size = sizeof number;
    const LSTATUS status = read(toWide(key), toWide(value), RRF_RT_REG_DWORD, &number, size);
    if (isMissing(status)) return fallback;
    requireDone(status);
    return number;
}

void SystemRegistry::writeString(std::string_view key, std::string_view value, std::string_view data) {
    const std::wstring text = toWide(data);
    write(key, value, REG_SZ, text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

void SystemRegistry::writeNumber(std::string_view key, std::string_view value, std::int32_t data) {
    write(key, value, REG_DWORD, &data, sizeof data);
}

}  // namespace hx::windows
