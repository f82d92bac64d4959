// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <windows.h>

namespace hx::com {

/// The library that is a server, loaded as a host's installer loads it.
class Library {
  public:
    /// `name` is that of a file beside the program.
    explicit Library(const std::wstring& name) : module_(LoadLibraryW(file(name).c_str())) {
        EXPECT_NE(module_, nullptr);
    }
    ~Library() { FreeLibrary(module_); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    template <class Function>
    [[nodiscard]] Function* function(const char* name) const {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
    }
    [[nodiscard]] HRESULT install(bool install, const wchar_t* command) const {
        return function<HRESULT STDMETHODCALLTYPE(BOOL, LPCWSTR)>("DllInstall")(install, command);
    }
    /// One that takes nothing.
    [[nodiscard]] HRESULT call(const char* name) const { return function<HRESULT STDMETHODCALLTYPE()>(name)(); }

  private:
    static std::wstring file(const std::wstring& name) {
        std::array<wchar_t, MAX_PATH> program{};
        GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
        return (std::filesystem::path(program.data()).parent_path() / name).wstring();
    }

    HMODULE module_;
};

/// While it lives, the library is registered for all users: what is registered for one, Wine does not find.
class Registered {
  public:
    explicit Registered(const std::wstring& name) : library(name) {
        EXPECT_EQ(library.call("DllRegisterServer"), S_OK);
    }
    ~Registered() { EXPECT_EQ(library.call("DllUnregisterServer"), S_OK); }
    Registered(const Registered&) = delete;
    Registered& operator=(const Registered&) = delete;

    Library library;
};

}  // namespace hx::com
