// SPDX-License-Identifier: MIT
#include "adapters/windows/html_help.h"

#include "adapters/windows/native_windows.h"
#include "hosting/windows_text.h"

namespace hx::windows {

namespace {

constexpr UINT helpContext = 15, closeEveryWindow = 18;

/// The viewer's entry for file names of one kind. Its library stays loaded: its windows live in threads of their own.
template <class Character>
using Entry = HWND WINAPI(HWND owner, const Character* file, UINT command, DWORD_PTR data);

template <class Character>
Entry<Character>* entry(const char* name) {
    static const HMODULE library = LoadLibraryExW(L"hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    return library == nullptr
               ? nullptr
               : reinterpret_cast<Entry<Character>*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

// In the user's code page; empty when it does not have all characters.
std::string inCodePage(const std::wstring& text) {
    BOOL isLost = FALSE;
    BOOL* const lost = GetACP() == CP_UTF8 ? nullptr : &isLost;  // which has them all, and says nothing
    std::string bytes(text.size() * 4, '\0');
    const int size = WideCharToMultiByte(CP_ACP, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                                         static_cast<int>(bytes.size()), nullptr, lost);
    bytes.resize(isLost ? 0 : static_cast<std::size_t>(size));
    return bytes;
}

}  // namespace

void HtmlHelp::showContext(host::WindowHandle owner, const std::string& file, std::int32_t context) {
    const std::wstring name = hosting::toWide(file);
    const auto data = static_cast<DWORD_PTR>(context);
    if (const std::string bytes = inCodePage(name); !bytes.empty()) {
        if (auto* const show = entry<char>("HtmlHelpA")) show(toHwnd(owner), bytes.c_str(), helpContext, data);
    } else if (auto* const showWide = entry<wchar_t>("HtmlHelpW")) {
        showWide(toHwnd(owner), name.c_str(), helpContext, data);
    }
}

void HtmlHelp::closeAll() {
    // Without the library there is no window of it.
    if (GetModuleHandleW(L"hhctrl.ocx") == nullptr) return;
    if (auto* const close = entry<char>("HtmlHelpA")) close(nullptr, nullptr, closeEveryWindow, 0);
}

}  // namespace hx::windows
