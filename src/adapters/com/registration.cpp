// SPDX-License-Identifier: MIT
#include "adapters/com/registration.h"

#include <objbase.h>
#include <oleauto.h>
#include <vector>

#include "adapters/com/failure.h"
#include "adapters/com/pointer.h"
#include "adapters/com/text.h"

// The compiler's headers lack these.
STDAPI RegisterTypeLibForUser(ITypeLib* library, OLECHAR* file, OLECHAR* helpFolder);
STDAPI UnRegisterTypeLibForUser(REFGUID id, WORD major, WORD minor, LCID locale, SYSKIND system);

namespace hx::com {

namespace {

/// The default value of a key, or a named one.
struct Value {
    std::wstring key, name, text;
};

HKEY rootOf(Users users) { return users == Users::all ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }

std::wstring textOf(const CLSID& id) {
    wchar_t text[40];
    StringFromGUID2(id, text, static_cast<int>(std::size(text)));
    return text;
}

std::wstring classKey(const ClassEntry& entry) { return L"Software\\Classes\\CLSID\\" + textOf(entry.id); }
std::wstring programKey(const ClassEntry& entry) { return L"Software\\Classes\\" + toWide(entry.programId); }

std::vector<Value> valuesOf(const ClassEntry& entry) {
    const std::wstring description = toWide(entry.description), program = toWide(entry.programId);
    const std::wstring ofClass = classKey(entry), ofProgram = programKey(entry);
    return {{ofClass, L"", description},
            {ofClass + L"\\InprocServer32", L"", toWide(entry.file)},
            {ofClass + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
            {ofClass + L"\\ProgID", L"", program},
            {ofProgram, L"", description},
            {ofProgram + L"\\CLSID", L"", textOf(entry.id)}};
}

void requireDone(LSTATUS status) { require(HRESULT_FROM_WIN32(static_cast<DWORD>(status))); }

void write(HKEY root, const Value& value) {
    requireDone(RegSetKeyValueW(root, value.key.c_str(), value.name.c_str(), REG_SZ, value.text.c_str(),
                                static_cast<DWORD>((value.text.size() + 1) * sizeof(wchar_t))));
}

void remove(HKEY root, const std::wstring& key) {
    const LSTATUS status = RegDeleteTreeW(root, key.c_str());
    if (status != ERROR_FILE_NOT_FOUND) requireDone(status);
}

Pointer<ITypeLib> typesIn(const std::wstring& file) {
    Pointer<ITypeLib> library;
    require(LoadTypeLibEx(file.c_str(), REGKIND_NONE, reinterpret_cast<ITypeLib**>(library.out())));
    return library;
}

}  // namespace

void registerClass(const ClassEntry& entry, Users users) {
    for (const Value& value : valuesOf(entry)) write(rootOf(users), value);
}

void unregisterClass(const ClassEntry& entry, Users users) {
    remove(rootOf(users), classKey(entry));
    remove(rootOf(users), programKey(entry));
}

void registerTypes(const std::wstring& file, Users users) {
    const Pointer<ITypeLib> library = typesIn(file);
    std::wstring name = file;
    require(users == Users::all ? RegisterTypeLib(library.get(), name.data(), nullptr)
                                : RegisterTypeLibForUser(library.get(), name.data(), nullptr));
}

void unregisterTypes(const std::wstring& file, Users users) {
    const Pointer<ITypeLib> library = typesIn(file);
    TLIBATTR* attributes = nullptr;
    require(library->GetLibAttr(&attributes));
    const TLIBATTR types = *attributes;
    library->ReleaseTLibAttr(attributes);
    BSTR path = nullptr;
    const bool isThere =
        SUCCEEDED(QueryPathOfRegTypeLib(types.guid, types.wMajorVerNum, types.wMinorVerNum, types.lcid, &path));
    SysFreeString(path);
    if (!isThere) return;
    const auto unregister = users == Users::all ? UnRegisterTypeLib : UnRegisterTypeLibForUser;
    const HRESULT result = unregister(types.guid, types.wMajorVerNum, types.wMinorVerNum, types.lcid, types.syskind);
    if (result != TYPE_E_REGISTRYACCESS) require(result);  // what it says where the others have it
}

}  // namespace hx::com
