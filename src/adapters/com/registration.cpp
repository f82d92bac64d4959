// SPDX-License-Identifier: MIT
#include "adapters/com/registration.h"

#include <objbase.h>
#include <vector>

#include "adapters/com/failure.h"
#include "adapters/com/text.h"

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

}  // namespace

void registerClass(const ClassEntry& entry, Users users) {
    for (const Value& value : valuesOf(entry)) write(rootOf(users), value);
}

void unregisterClass(const ClassEntry& entry, Users users) {
    remove(rootOf(users), classKey(entry));
    remove(rootOf(users), programKey(entry));
}

}  // namespace hx::com
