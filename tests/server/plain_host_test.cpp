// SPDX-License-Identifier: MIT
// A studio with plain windows, which creates the add-in by its program identifier and calls it by the slots of its
// interface.
#include <gmock/gmock.h>

#include "adapters/com/extensibility_interface.h"
#include "adapters/headless/clipboard.h"
#include "adapters/headless/project_explorer.h"
#include "adapters/sqlite/project_file.h"
#include "adapters/windows/native_windows.h"
#include "addin/explorer_object.h"
#include "com/apartment.h"
#include "com/server_library.h"
#include "support/temporary_folder.h"
// This header needs what those before it say.
#include <psapi.h>

namespace hx::server {
namespace {

using com::Text;
using AddIn = com::Pointer<::CHX4Extensibility>;

/// What a process has at a moment.
struct Holdings {
    DWORD handles = 0;
    std::size_t windows = 0, bytes = 0;

    static Holdings now() {
        Holdings held;
        GetProcessHandleCount(GetCurrentProcess(), &held.handles);
        EnumThreadWindows(
            GetCurrentThreadId(),
            [](HWND, LPARAM count) {
                ++*reinterpret_cast<std::size_t*>(count);
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&held.windows));
        PROCESS_MEMORY_COUNTERS counters{};
        GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
        held.bytes = counters.PagefileUsage;
        return held;
    }
};

class PlainHostTest : public com::ApartmentTest {
  protected:
    PlainHostTest() {
        sqlite::createProject(project);
        clipboard.setPicture({"<svg/>"});  // for the explorer, which does not see what the library puts there
    }
    ~PlainHostTest() override { DestroyWindow(window); }
    // The objects that the add-in has been given are all let go.
    void TearDown() override {
        given = {};
        com::ApartmentTest::TearDown();
        EXPECT_EQ(registered.library.call("DllCanUnloadNow"), S_OK);
    }

    [[nodiscard]] static AddIn create() {
        CLSID id{};
        EXPECT_EQ(CLSIDFromProgID(L"HXRecipeEditor.Connect", &id), S_OK);
        AddIn made;
        EXPECT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(::CHX4Extensibility), made.out()), S_OK);
        return made;
    }
    [[nodiscard]] AddIn open() {
        AddIn addIn = create();
        EXPECT_EQ(addIn->Initialize(Text(project), none, given.get(), nullptr), S_OK);
        EXPECT_EQ(addIn->StartupComplete(), S_OK);
        EXPECT_EQ(addIn->NodeExpand(none, root, none), S_OK);
        return addIn;
    }
    [[nodiscard]] HWND embedded() const { return GetWindow(window, GW_CHILD); }
    [[nodiscard]] static WNDPROC procedureOf(HWND of) {
        return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(of, GWLP_WNDPROC));
    }
    void openAndClose() {
        const AddIn addIn = open();
        ASSERT_NE(embedded(), nullptr);
        SendMessageW(embedded(), WM_ACTIVATE, WA_ACTIVE, 0);
        MoveWindow(embedded(), 0, 0, 500, 400, TRUE);
        SendMessageW(embedded(), WM_ACTIVATE, WA_INACTIVE, 0);
        ASSERT_EQ(addIn->Deactivate(), S_OK);
        ASSERT_EQ(addIn->Terminate(), S_OK);
        ASSERT_EQ(embedded(), nullptr);
    }

    const com::Registered registered{L"HXRecipeEditor.dll"};
    const support::TemporaryFolder folder;
    const std::string project = std::filesystem::path(folder.file("Plant.hxs")).make_preferred().string();
    const HWND window = CreateWindowExW(0, L"STATIC", L"Studio", WS_POPUP, 0, 0, 800, 600, nullptr, nullptr,
                                        GetModuleHandleW(nullptr), nullptr);
    headless::Clipboard clipboard;
    headless::ProjectExplorer explorer{windows::toHandle(window), clipboard, "Plant"};
    com::Pointer<IDispatch> given = border.give(std::make_shared<addin::ExplorerObject>(explorer));
    const Text none{""}, root{"RCPE0"};
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

TEST_F(PlainHostTest, OpensAndClosesTheEditorAsOftenAsItWants) {
    constexpr int first = 50, all = 200;
    constexpr std::size_t much = 1 << 20;
    for (int i = 0; i < first; ++i) openAndClose();
    const Holdings before = Holdings::now();
    for (int i = first; i < all; ++i) openAndClose();
    const Holdings after = Holdings::now();
    EXPECT_EQ(after.handles, before.handles);
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_LT(after.bytes, before.bytes + much);
    EXPECT_GT(before.bytes, 0u);
}

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
