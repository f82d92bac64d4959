// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "com/apartment.h"
#include "com/server_library.h"
#include "hosting/windows_text.h"
#include "registry_contents.h"

namespace hx::server {
namespace {

using Entries = std::set<std::wstring>;

Entries classesOf(HKEY root) { return RegistryContents(root, L"Software\\Classes").entries(); }

Entries without(const Entries& all, const Entries& some) {
    Entries rest;
    std::ranges::set_difference(all, some, std::inserter(rest, rest.end()));
    return rest;
}

bool holds(const Entries& entries, const std::wstring& part) {
    return std::ranges::any_of(entries,
                               [&](const std::wstring& entry) { return entry.find(part) != std::wstring::npos; });
}

/// The names of the files beside the program.
std::set<std::filesystem::path> files() {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::set<std::filesystem::path> found;
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(program).parent_path())) {
        found.insert(entry.path());
    }
    return found;
}

class RegistrationTest : public testing::Test {
  protected:
    const com::Library library{L"HXRecipeEditor.dll"};
    const HRESULT cleared = library.call("DllUnregisterServer");  // what a run that was ended has left
    const Entries machine = classesOf(HKEY_LOCAL_MACHINE), user = classesOf(HKEY_CURRENT_USER);
    const std::set<std::filesystem::path> disk = files();

    void expectNothingLeft() const {
        EXPECT_EQ(classesOf(HKEY_LOCAL_MACHINE), machine);
        EXPECT_EQ(classesOf(HKEY_CURRENT_USER), user);
        EXPECT_EQ(files(), disk);
    }
};

TEST_F(RegistrationTest, LeavesNothingOfWhatItMade) {
    ASSERT_EQ(library.call("DllRegisterServer"), S_OK);
    const Entries made = without(classesOf(HKEY_LOCAL_MACHINE), machine);
    EXPECT_TRUE(holds(made, L"HXRecipeEditor.Connect\\CLSID"));
    EXPECT_TRUE(holds(made, L"InprocServer32"));
    EXPECT_TRUE(holds(made, L"TypeLib\\{5D1C1B52-66A0-4D0E-8F6B-0B2C1D6C9A01}\\1.0")) << "the type library";
    EXPECT_TRUE(holds(made, L"Interface\\{5D1C1B52-66A0-4D0E-8F6B-0B2C1D6C9A02}")) << "its interface";
    ASSERT_EQ(library.call("DllUnregisterServer"), S_OK);
    expectNothingLeft();
}

TEST_F(RegistrationTest, AgainIsTheSame) {
    ASSERT_EQ(library.call("DllRegisterServer"), S_OK);
    const Entries once = classesOf(HKEY_LOCAL_MACHINE);
    ASSERT_EQ(library.call("DllRegisterServer"), S_OK);
    EXPECT_EQ(classesOf(HKEY_LOCAL_MACHINE), once);
    EXPECT_EQ(library.call("DllUnregisterServer"), S_OK);
    EXPECT_EQ(library.call("DllUnregisterServer"), S_OK) << "what is not there is no error";
    expectNothingLeft();
}

TEST_F(RegistrationTest, ForOneUserLeavesNothingEither) {
    ASSERT_EQ(library.install(true, L"user"), S_OK);
    EXPECT_TRUE(holds(without(classesOf(HKEY_CURRENT_USER), user), L"HXRecipeEditor.Connect\\CLSID"));
    EXPECT_FALSE(holds(without(classesOf(HKEY_LOCAL_MACHINE), machine), L"HXRecipeEditor.Connect"));
    ASSERT_EQ(library.install(false, L"user"), S_OK);
    expectNothingLeft();
}

}  // namespace
}  // namespace hx::server
