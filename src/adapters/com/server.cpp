// SPDX-License-Identifier: MIT
#include "adapters/com/server.h"

#include <algorithm>

#include "adapters/com/failure.h"
#include "adapters/com/text.h"

namespace hx::com {

namespace {

HRESULT first(HRESULT one, HRESULT other) { return FAILED(one) ? one : other; }

}  // namespace

HMODULE moduleOf(const void* address) noexcept {
    constexpr DWORD how = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    HMODULE module = nullptr;
    GetModuleHandleExW(how, static_cast<LPCWSTR>(address), &module);
    return module;
}

std::wstring fileOf(HMODULE module) {
    std::wstring name(MAX_PATH, L'\0');
    // A name that does not fit is cut.
    for (;;) {
        const DWORD size = GetModuleFileNameW(module, name.data(), static_cast<DWORD>(name.size()));
        if (size == 0) fail(HRESULT_FROM_WIN32(GetLastError()));
        if (size < name.size()) return name.substr(0, size);
        name.resize(name.size() * 2);
    }
}

void keepLoaded(const void* address) noexcept {
    constexpr DWORD how = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN;
    HMODULE library = nullptr;
    GetModuleHandleExW(how, static_cast<LPCWSTR>(address), &library);
}

HRESULT Server::getClassObject(REFCLSID id, REFIID iid, void** object) noexcept {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    return guarded([&] {
        const auto found = std::ranges::find_if(classes_, [&](const Class& one) { return one.id == id; });
        if (found == classes_.end()) return CLASS_E_CLASSNOTAVAILABLE;
        const auto factory = Pointer<ClassFactory>::adopt(new ClassFactory(found->make, found->makeLent, border_));
        return factory->QueryInterface(iid, object);
    });
}

std::vector<ClassEntry> Server::entries() const {
    std::vector<ClassEntry> entries;
    for (const Class& one : classes_)
        entries.push_back({one.id, one.programId, one.description, toUtf8(fileOf(library_))});
    return entries;
}

HRESULT Server::registerFor(Users users) noexcept {
    const HRESULT result = guarded([&] {
        for (const ClassEntry& entry : entries()) registerClass(entry, users);
        if (types_ == Types::own) registerTypes(fileOf(library_), users);
        return S_OK;
    });
    if (FAILED(result)) (void)unregisterFor(users);  // all or nothing
    return result;
}

HRESULT Server::unregisterFor(Users users) noexcept {
    return guarded([&] {
        for (const ClassEntry& entry : entries()) unregisterClass(entry, users);
        if (types_ == Types::own) unregisterTypes(fileOf(library_), users);
        return S_OK;
    });
}

HRESULT Server::registerServer() noexcept {
    const HRESULT result = registerFor(Users::all);
    return result == E_ACCESSDENIED ? registerFor(Users::one) : result;
}

HRESULT Server::unregisterServer() noexcept {
    const HRESULT forOne = unregisterFor(Users::one), forAll = unregisterFor(Users::all);
    return forAll == E_ACCESSDENIED ? forOne : first(forOne, forAll);
}

HRESULT Server::install(bool install, const wchar_t* command) noexcept {
    const bool forOne = command != nullptr && CompareStringOrdinal(command, -1, L"user", -1, TRUE) == CSTR_EQUAL;
    const Users users = forOne ? Users::one : Users::all;
    return install ? registerFor(users) : unregisterFor(users);
}

}  // namespace hx::com
