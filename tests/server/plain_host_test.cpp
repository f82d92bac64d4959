// SPDX-License-Identifier: MIT
#include "plain_host.h"

namespace hx::server {
namespace {

class PlainHostTest : public PlainHost {
  protected:
    PlainHostTest() : PlainHost(L"HXRecipeEditor.dll") {}
};

TEST_F(PlainHostTest, HasTheEditorInItsWindow) {
    const AddIn addIn = open();
    const HWND inside = embedded();
    ASSERT_NE(inside, nullptr);
    constexpr LONG added = static_cast<LONG>(0x80880000);
    EXPECT_EQ(GetWindowLongA(inside, GWL_STYLE) & added, added);
    EXPECT_EQ(GetAncestor(inside, GA_PARENT), window);
    EXPECT_THAT(explorer.childKeys("", 1), testing::ElementsAre("RCPE0"));
    addIn->Terminate();
    EXPECT_FALSE(IsWindow(inside));
    EXPECT_THAT(explorer.childKeys("", 1), testing::ElementsAre());
}

TEST_F(PlainHostTest, IsNotKeptFromSubclassingTheEditor) {
    static WNDPROC before;
    static int heard;
    heard = 0;
    const AddIn addIn = open();
    before = procedureOf(embedded());
    const WNDPROC watch = [](HWND of, UINT number, WPARAM wParam, LPARAM lParam) -> LRESULT {
        if (number == WM_ACTIVATE) ++heard;
        return CallWindowProcW(before, of, number, wParam, lParam);
    };
    SetWindowLongPtrW(embedded(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(watch));
    SendMessageW(embedded(), WM_ACTIVATE, WA_CLICKACTIVE, 0);
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(addIn->Terminate(), S_OK);
    EXPECT_EQ(embedded(), nullptr);
}

TEST_F(PlainHostTest, MayForgetToEndTheAddIn) {
    { const AddIn addIn = open(); }
    EXPECT_EQ(embedded(), nullptr);
}

TEST_F(PlainHostTest, OpensAndClosesTheEditorAsOftenAsItWants) { expectNoGrowth(); }

TEST_F(PlainHostTest, UsesTheAddInInOneThread) {
    const AddIn addIn = create();
    HRESULT elsewhere = S_OK;
    const auto tryElsewhere = [](void* result) -> DWORD {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        CLSID id{};
        CLSIDFromProgID(L"HXRecipeEditor.Connect", &id);
        com::Pointer<IUnknown> made;
        *static_cast<HRESULT*>(result) = CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, made.out());
        CoUninitialize();
        return 0;
    };
    const HANDLE thread = CreateThread(nullptr, 0, tryElsewhere, &elsewhere, 0, nullptr);
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
    EXPECT_EQ(elsewhere, RPC_E_WRONG_THREAD);
}

}  // namespace
}  // namespace hx::server
