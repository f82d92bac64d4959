// SPDX-License-Identifier: MIT
#include <array>

#include "adapters/com/components.h"
#include "adapters/sqlite/project_check.h"
#include "server/plain_host.h"

namespace hx::server {
namespace {

std::wstring libraryAt(const char* path) { return std::filesystem::absolute(path).make_preferred().wstring(); }

/// The host's own message loop serves the toolkit.
class ToolkitHostTest : public PlainHost {
  protected:
    ToolkitHostTest() : PlainHost(libraryAt(HX_EDITOR_LIBRARY)) { ShowWindow(window, SW_SHOWNA); }
    ~ToolkitHostTest() override { serve(); }

    // What is there to be done by now.
    static void serve() {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    template <class Condition>
    static void serveUntil(const Condition& condition) {
        for (MSG message; !condition() && GetMessageW(&message, nullptr, 0, 0) > 0;) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    void use() override { serve(); }

    void execute(const std::string& statement) const {
        sqlite::ProjectDatabase database(project, {});
        database.execute(statement.c_str());
    }
    [[nodiscard]] std::string variable() const {
        sqlite::ProjectDatabase database(project, {});
        sqlite::Statement rows(database, "SELECT VarRecipe FROM TrcpRecipeMember");
        return rows.step() ? std::string(rows.textView(0)) : std::string();
    }
    void click(int x, int y) const {
        PostMessageW(embedded(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        PostMessageW(embedded(), WM_LBUTTONUP, 0, MAKELPARAM(x, y));
        serve();
    }
    void press(WPARAM key) const {
        PostMessageW(embedded(), WM_KEYDOWN, key, 1);
        PostMessageW(embedded(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
        serve();
    }
};

TEST_F(ToolkitHostTest, HasTheEditorInItsWindow) {
    const AddIn addIn = open();
    const HWND inside = embedded();
    ASSERT_NE(inside, nullptr);
    constexpr LONG added = static_cast<LONG>(0x80880000);
    EXPECT_EQ(GetWindowLongA(inside, GWL_STYLE) & added, added);
    EXPECT_EQ(GetAncestor(inside, GA_PARENT), window);
    EXPECT_TRUE(IsWindowVisible(inside));
    EXPECT_TRUE(IsWindowUnicode(inside));
    serve();
    EXPECT_EQ(addIn->Terminate(), S_OK);
    serveUntil([&] { return !IsWindow(inside); });
}

TEST_F(ToolkitHostTest, TypesIntoTheGrid) {
    execute("INSERT INTO TrcpRecipe (ID, Name) VALUES (1, 'Cola')");
    execute("INSERT INTO TrcpRecipeMember (ParentID, VarRecipe, ChildID) VALUES (1, 'Pump', 0)");
    const AddIn addIn = open();
    MoveWindow(embedded(), 0, 0, 780, 560, TRUE);
    EXPECT_EQ(addIn->NodeClick(none, Text("RCPR1"), Text("Cola")), S_OK);
    serve();
    SetFocus(embedded());
    click(120, 120);
    for (const char key : std::string("TANK")) press(static_cast<WPARAM>(key));
    press(VK_RETURN);
    EXPECT_EQ(addIn->NodeClick(none, root, none), S_OK);
    EXPECT_EQ(variable(), "tank");
    EXPECT_EQ(addIn->Terminate(), S_OK);
}

/// A user who closes the next dialog that opens, and sees whether the host takes input meanwhile.
class Closer {
  public:
    explicit Closer(HWND host) {
        waiting = host;
        timer_ = SetTimer(nullptr, 0, 10, look);
    }
    ~Closer() { KillTimer(nullptr, timer_); }
    Closer(const Closer&) = delete;
    Closer& operator=(const Closer&) = delete;
    [[nodiscard]] static bool hasClosed() { return waiting == nullptr; }
    static inline bool isHostEnabled = false;

  private:
    static void CALLBACK look(HWND, UINT, UINT_PTR, DWORD) { EnumThreadWindows(GetCurrentThreadId(), close, 0); }
    static BOOL CALLBACK close(HWND window, LPARAM) {
        const bool isDialog = IsWindowVisible(window) && GetWindow(window, GW_OWNER) != nullptr;
        if (waiting == nullptr || window == waiting || !isDialog) return TRUE;
        isHostEnabled = IsWindowEnabled(waiting);
        waiting = nullptr;
        PostMessageW(window, WM_CLOSE, 0, 0);
        return FALSE;
    }
    static inline HWND waiting = nullptr;  // for the dialog over this host
    UINT_PTR timer_ = 0;
};

TEST_F(ToolkitHostTest, WaitsWhileADialogIsOpen) {
    execute("INSERT INTO TrcpRecipe (ID, Name) VALUES (1, 'Cola')");
    const AddIn addIn = open();
    addIn->NodeClick(none, Text("RCPR1"), none);
    const Closer closer(window);
    constexpr short f9 = 120;
    EXPECT_EQ(addIn->NodeKeyDown(none, Text("RCPR1"), none, f9, 0), S_OK);
    EXPECT_TRUE(Closer::hasClosed());
    EXPECT_FALSE(Closer::isHostEnabled);
    EXPECT_TRUE(IsWindowEnabled(window));
    EXPECT_EQ(addIn->Terminate(), S_OK);
}

TEST_F(ToolkitHostTest, ShowsTheReportThatIsASibling) {
    execute("INSERT INTO TrcpRecipe (ID, Name) VALUES (1, 'Cola')");
    const com::Registered report(libraryAt(HX_REPORT_LIBRARY));
    const AddIn addIn = open();
    {
        const auto connect = com::Components(border).create("HXProjectReport.Connect");
        const Closer closer(window);
        connect->get("Show", std::array<automation::Variant, 3>{"HXRecipe", project, windows::toHandle(embedded())});
        EXPECT_TRUE(Closer::hasClosed());
    }
    EXPECT_EQ(report.library.call("DllCanUnloadNow"), S_OK);
    EXPECT_EQ(addIn->Terminate(), S_OK);
}

TEST_F(ToolkitHostTest, OpensAndClosesTheEditorAsOftenAsItWants) { expectNoGrowth(); }

}  // namespace
}  // namespace hx::server
