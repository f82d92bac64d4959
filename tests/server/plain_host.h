// SPDX-License-Identifier: MIT
#pragma once

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

/// A studio with plain windows, which creates the add-in by its program identifier and calls it by the slots of its
/// interface.
class PlainHost : public com::ApartmentTest {
  protected:
    /// `library` is the file of the add-in, or its name beside the program.
    explicit PlainHost(const std::wstring& library) : registered(library) {
        sqlite::createProject(project);
        clipboard.setPicture({"<svg/>"});  // for the explorer, which does not see what the library puts there
    }
    ~PlainHost() override { DestroyWindow(window); }
    // The objects that the add-in has been given are all let go.
    void TearDown() override {
        given = {};
        com::ApartmentTest::TearDown();
        EXPECT_EQ(registered.library.call("DllCanUnloadNow"), S_OK);  // nobody holds an object of the add-in's
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
    virtual void use() {}
    void openAndClose() {
        const AddIn addIn = open();
        ASSERT_NE(embedded(), nullptr);
        SendMessageW(embedded(), WM_ACTIVATE, WA_ACTIVE, 0);
        MoveWindow(embedded(), 0, 0, 500, 400, TRUE);
        use();
        SendMessageW(embedded(), WM_ACTIVATE, WA_INACTIVE, 0);
        ASSERT_EQ(addIn->Deactivate(), S_OK);
        ASSERT_EQ(addIn->Terminate(), S_OK);
        ASSERT_EQ(embedded(), nullptr);
    }
    void expectNoGrowth() {
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

    const com::Registered registered;
    const support::TemporaryFolder folder;
    const std::string project = std::filesystem::path(folder.file("Plant.hxs")).make_preferred().string();
    const HWND window = CreateWindowExW(0, L"STATIC", L"Studio", WS_POPUP, 0, 0, 800, 600, nullptr, nullptr,
                                        GetModuleHandleW(nullptr), nullptr);
    headless::Clipboard clipboard;
    headless::ProjectExplorer explorer{windows::toHandle(window), clipboard, "Plant"};
    com::Pointer<IDispatch> given = border.give(std::make_shared<addin::ExplorerObject>(explorer));
    const Text none{""}, root{"RCPE0"};
};

}  // namespace hx::server
