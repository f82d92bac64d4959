// SPDX-License-Identifier: MIT
#include "adapters/com/server.h"

#include <gmock/gmock.h>

#include "adapters/com/components.h"
#include "adapters/com/text.h"
#include "apartment.h"
#include "server_library.h"
#include "support/error_of.h"

namespace hx::com {
namespace {

constexpr CLSID plantId = {0x0a5d1f3e, 0x7c44, 0x4b0b, {0x8e, 0x51, 0x2d, 0x96, 0x13, 0xc7, 0x40, 0xaa}};

const std::wstring file = L"hx_com_server.dll";

bool isThere(HKEY root, const std::wstring& key) {
    HKEY opened = nullptr;
    const bool found =
        RegOpenKeyExW(root, (L"Software\\Classes\\" + key).c_str(), 0, KEY_READ, &opened) == ERROR_SUCCESS;
    if (found) RegCloseKey(opened);
    return found;
}

std::wstring classKey() {
    wchar_t text[40];
    StringFromGUID2(plantId, text, 40);
    return std::wstring(L"CLSID\\") + text;
}

class ServerTest : public ApartmentTest {
  protected:
    Components components{border};
};

TEST_F(ServerTest, RegistersForOneUserAndLeavesNothing) {
    const Library library(file);
    ASSERT_EQ(library.install(true, L"user"), S_OK);
    EXPECT_TRUE(isThere(HKEY_CURRENT_USER, classKey() + L"\\InprocServer32"));
    EXPECT_TRUE(isThere(HKEY_CURRENT_USER, L"HXTest.Plant\\CLSID"));
    EXPECT_FALSE(isThere(HKEY_LOCAL_MACHINE, L"HXTest.Plant"));
    ASSERT_EQ(library.install(false, L"user"), S_OK);
    EXPECT_FALSE(isThere(HKEY_CURRENT_USER, classKey()));
    EXPECT_FALSE(isThere(HKEY_CURRENT_USER, L"HXTest.Plant"));
    EXPECT_EQ(library.install(false, L"user"), S_OK) << "what is not there is no error";
}

TEST_F(ServerTest, RegistersForAllUsersAndLeavesNothing) {
    {
        const Registered registered(file);
        EXPECT_TRUE(isThere(HKEY_LOCAL_MACHINE, classKey() + L"\\ProgID"));
        EXPECT_TRUE(isThere(HKEY_LOCAL_MACHINE, L"HXTest.Plant\\CLSID"));
    }
    EXPECT_FALSE(isThere(HKEY_LOCAL_MACHINE, classKey()));
    EXPECT_FALSE(isThere(HKEY_LOCAL_MACHINE, L"HXTest.Plant"));
}

TEST_F(ServerTest, MakesAComponentByItsProgramIdentifier) {
    const Registered registered(file);
    const auto plant = components.create("HXTest.Plant");
    plant->set("Name", "Süd");
    EXPECT_EQ(plant->get("Name"), automation::Variant("Süd"));
    const auto refused = support::errorOf([&] { plant->get("Fail", std::vector<automation::Variant>{-2147217900}); });
    EXPECT_EQ(refused.number(), -2147217900);
}

TEST_F(ServerTest, SaysThatThereIsNoSuchComponent) {
    const auto missing = support::errorOf([&] { (void)components.create("HXTest.Nothing"); });
    EXPECT_EQ(missing.number(), CO_E_CLASSSTRING);
    EXPECT_NE(missing.description(), "");
}

TEST_F(ServerTest, StaysWhileSomebodyHoldsAnObjectOrALock) {
    const Registered registered(file);
    const Library& library = registered.library;
    EXPECT_EQ(library.call("DllCanUnloadNow"), S_OK);
    {
        const auto plant = components.create("HXTest.Plant");
        EXPECT_EQ(library.call("DllCanUnloadNow"), S_FALSE);
    }
    EXPECT_EQ(library.call("DllCanUnloadNow"), S_OK);
    Pointer<IClassFactory> factory;
    ASSERT_EQ(CoGetClassObject(plantId, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, factory.out()), S_OK);
    EXPECT_EQ(library.call("DllCanUnloadNow"), S_OK);
    EXPECT_EQ(factory->LockServer(TRUE), S_OK);
    EXPECT_EQ(library.call("DllCanUnloadNow"), S_FALSE);
    EXPECT_EQ(factory->LockServer(FALSE), S_OK);
    EXPECT_EQ(library.call("DllCanUnloadNow"), S_OK);
}

TEST_F(ServerTest, MakesNothingThatItDoesNotHave) {
    const Library library(file);
    using GetClassObject = HRESULT STDMETHODCALLTYPE(REFCLSID, REFIID, void**);
    auto* const get = library.function<GetClassObject>("DllGetClassObject");
    Pointer<IClassFactory> factory;
    EXPECT_EQ(get(IID_IDispatch, IID_IClassFactory, factory.out()), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(get(plantId, IID_IDispatch, factory.out()), E_NOINTERFACE);
    EXPECT_EQ(get(plantId, IID_IClassFactory, nullptr), E_POINTER);
    ASSERT_EQ(get(plantId, IID_IClassFactory, factory.out()), S_OK);
    Pointer<IUnknown> object;
    EXPECT_EQ(factory->CreateInstance(factory.get(), IID_IUnknown, object.out()), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IClassFactory, object.out()), E_NOINTERFACE);
    EXPECT_EQ(library.call("DllCanUnloadNow"), S_OK);
}

}  // namespace
}  // namespace hx::com
