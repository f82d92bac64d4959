// SPDX-License-Identifier: MIT
#include "adapters/windows/system_registry.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "hosting/windows_text.h"
#include "support/error_of.h"

namespace hx::windows {
namespace {

constexpr std::string_view key = "SOFTWARE\\HXTest\\Plant";

class SystemRegistryTest : public testing::Test {
  protected:
    ~SystemRegistryTest() override {
        for (const REGSAM view : {KEY_WOW64_64KEY, KEY_WOW64_32KEY}) {
            HKEY software = nullptr;
            RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"SOFTWARE", 0, DELETE | KEY_READ | KEY_SET_VALUE | view, &software);
            RegDeleteTreeW(software, L"HXTest");
            RegCloseKey(software);
        }
    }
    // As a program of the width of the view writes it.
    static void write(REGSAM view, const wchar_t* name, const wchar_t* text) {
        HKEY made = nullptr;
        ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, hosting::toWide(key).c_str(), 0, nullptr, 0, KEY_WRITE | view,
                                  nullptr, &made, nullptr),
                  ERROR_SUCCESS);
        const auto size = static_cast<DWORD>((wcslen(text) + 1) * sizeof(wchar_t));
        EXPECT_EQ(RegSetValueExW(made, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text), size), ERROR_SUCCESS);
        RegCloseKey(made);
    }

    SystemRegistry registry;
};

TEST_F(SystemRegistryTest, KeepsTextsAndNumbers) {
    const std::string text = "D:\\Süd €" + std::string(300, 'x');
    registry.writeString(key, "Path", text);
    registry.writeNumber(key, "LCID", -1031);
    EXPECT_EQ(registry.readString(key, "PATH"), text);
    EXPECT_EQ(registry.readNumber(key, "lcid", 0), -1031);
}

TEST_F(SystemRegistryTest, GivesTheFallbackForWhatIsMissingOrOfTheOtherKind) {
    EXPECT_EQ(registry.readString(key, "Path", "none"), "none");
    EXPECT_EQ(registry.readNumber(key, "LCID", 7), 7);
    registry.writeString(key, "LCID", "1031");
    registry.writeNumber(key, "Path", 5);
    EXPECT_EQ(registry.readString(key, "Path", "none"), "none");
    EXPECT_EQ(registry.readNumber(key, "LCID", 7), 7);
    registry.writeString(key, "Empty", "");
    EXPECT_EQ(registry.readString(key, "Empty", "none"), "");
}

TEST_F(SystemRegistryTest, ReadsWhatAProgramOfEitherWidthHasWritten) {
    write(KEY_WOW64_32KEY, L"Path", L"C:\\Of32");
    EXPECT_EQ(registry.readString(key, "Path"), "C:\\Of32");
    write(KEY_WOW64_64KEY, L"Path", L"C:\\Of64");
    EXPECT_EQ(registry.readString(key, "Path"), sizeof(void*) == 8 ? "C:\\Of64" : "C:\\Of32");
}

TEST_F(SystemRegistryTest, SaysWhatWindowsSaysOfAFailure) {
    const auto refused = support::errorOf([&] { registry.writeString(std::string(300, 'k'), "Path", "x"); });
    EXPECT_LT(refused.number(), 0);
    EXPECT_NE(refused.description(), "");
}

}  // namespace
}  // namespace hx::windows
