// SPDX-License-Identifier: MIT
#include "adapters/windows/native_windows.h"

#include <gmock/gmock.h>
#include <optional>

#include "support/error_of.h"

namespace hx::windows {
namespace {

namespace window = host::window;
using testing::ElementsAre;

constexpr UINT question = WM_APP + 1;
constexpr LRESULT answer = LRESULT{1} << 40 | 42;  // which is wider than the contract's numbers

/// A window of somebody's own, whose procedure answers one question.
class Window {
  public:
    explicit Window(HWND parent = nullptr)
        : window_(CreateWindowExW(0, className(), L"", parent == nullptr ? WS_POPUP : WS_CHILD, 10, 20, 300, 200,
                                  parent, nullptr, GetModuleHandleW(nullptr), nullptr)) {}
    ~Window() { end(); }
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    void end() {
        if (IsWindow(window_)) DestroyWindow(window_);
    }
    [[nodiscard]] HWND hwnd() const { return window_; }
    [[nodiscard]] host::WindowHandle handle() const { return toHandle(window_); }
    LRESULT ask(WPARAM wParam = 0, LPARAM lParam = 0) { return SendMessageW(window_, question, wParam, lParam); }
    [[nodiscard]] WNDPROC procedure() const {
        return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window_, GWLP_WNDPROC));
    }
    static inline WPARAM lastWParam = 0;

  private:
    static LRESULT CALLBACK receive(HWND window, UINT number, WPARAM wParam, LPARAM lParam) {
        if (number != question) return DefWindowProcW(window, number, wParam, lParam);
        lastWParam = wParam;
        return answer;
    }
    static const wchar_t* className() {
        static const bool registered = [] {
            WNDCLASSW made{};
            made.lpfnWndProc = receive;
            made.hInstance = GetModuleHandleW(nullptr);
            made.lpszClassName = L"HXTestWindow";
            return RegisterClassW(&made) != 0;
        }();
        return registered ? L"HXTestWindow" : L"";
    }

    HWND window_;
};

/// Somebody else who puts himself before a window's procedure, as any program may.
class Stranger {
  public:
    explicit Stranger(const Window& over) : window_(over.hwnd()) {
        before = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Stranger::receive)));
    }
    void leave() { SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(before)); }

  private:
    static LRESULT CALLBACK receive(HWND window, UINT number, WPARAM wParam, LPARAM lParam) {
        const LRESULT result = CallWindowProcW(before, window, number, wParam, lParam);
        return number == question ? result + 1 : result;
    }
    static inline WNDPROC before = nullptr;
    HWND window_;
};

class NativeWindowsTest : public testing::Test {
  protected:
    /// Notes questions under a name and passes everything on.
    window::ProcedureAddress watch(const std::string& name) {
        const auto previous = std::make_shared<window::ProcedureAddress>();
        *previous =
            windows->install(shown.handle(), [this, name, previous](host::WindowHandle handle, std::uint32_t number,
                                                                    std::uint32_t wParam, std::int32_t lParam) {
                if (number == question) heard.push_back(name);
                return windows->call(*previous, handle, number, wParam, lParam);
            });
        return *previous;
    }

    Window shown;
    std::optional<NativeWindows> windows{std::in_place};
    std::vector<std::string> heard;
};

TEST_F(NativeWindowsTest, AddsTheBitsOfAStyle) {
    const std::uint32_t added = window::popup | window::border | window::sysMenu;
    windows->setStyle(shown.handle(), windows->style(shown.handle()) | added);
    EXPECT_EQ(static_cast<std::uint32_t>(GetWindowLongW(shown.hwnd(), GWL_STYLE)) & added, added);
}

TEST_F(NativeWindowsTest, PlacesAWindowIntoAnotherAndTakesItOutHidden) {
    const Window host;
    EXPECT_EQ(windows->embeddingObject(shown.handle()), nullptr);
    windows->setParent(shown.handle(), host.handle());
    EXPECT_EQ(GetAncestor(shown.hwnd(), GA_PARENT), host.hwnd());
    EXPECT_EQ(windows->embeddingObject(shown.handle())->className(), "MDIEdit");
    ShowWindow(shown.hwnd(), SW_SHOWNA);
    windows->setParent(shown.handle(), -1);
    EXPECT_EQ(GetAncestor(shown.hwnd(), GA_PARENT), GetDesktopWindow());
    EXPECT_FALSE(IsWindowVisible(shown.hwnd()));
}

TEST_F(NativeWindowsTest, ASubclassedWindowAnswersAsBefore) {
    watch("one");
    EXPECT_EQ(shown.ask(WPARAM{1} << 40), answer) << "the whole number";
    EXPECT_EQ(Window::lastWParam, WPARAM{1} << 40);
    EXPECT_THAT(heard, ElementsAre("one"));
    EXPECT_TRUE(IsWindowUnicode(shown.hwnd()));
}

TEST_F(NativeWindowsTest, AProcedureMayAnswerItself) {
    (void)windows->install(shown.handle(),
                           [](auto, std::uint32_t number, auto, auto) { return number == question ? -7 : 0; });
    EXPECT_EQ(shown.ask(), -7);
}

TEST_F(NativeWindowsTest, WhatAProcedureThrowsEndsThere) {
    (void)windows->install(shown.handle(), [](auto, auto, auto, auto) -> std::int32_t { throw std::bad_alloc(); });
    EXPECT_EQ(shown.ask(), answer);
}

TEST_F(NativeWindowsTest, ProceduresAreTakenAwayInTheOppositeOrder) {
    const WNDPROC own = shown.procedure();
    const window::ProcedureAddress first = watch("one"), second = watch("two");
    shown.ask();
    EXPECT_THAT(heard, ElementsAre("two", "one"));
    windows->restore(shown.handle(), second);
    heard.clear();
    shown.ask();
    EXPECT_THAT(heard, ElementsAre("one"));
    windows->restore(shown.handle(), first);
    EXPECT_EQ(shown.procedure(), own);
    EXPECT_EQ(windows->procedure(shown.handle()), first);
}

TEST_F(NativeWindowsTest, AWindowThatSomebodyElseHasSubclassedIsLeftAlone) {
    const WNDPROC own = shown.procedure();
    const window::ProcedureAddress before = watch("one");
    Stranger stranger(shown);
    const WNDPROC strangers = shown.procedure();
    windows->restore(shown.handle(), before);
    EXPECT_EQ(shown.procedure(), strangers);
    EXPECT_EQ(shown.ask(), answer + 1);
    EXPECT_THAT(heard, ElementsAre());
    stranger.leave();
    EXPECT_EQ(shown.ask(), answer);
    windows.reset();
    EXPECT_EQ(shown.procedure(), own);
}

TEST_F(NativeWindowsTest, MessagesAreStillPassedOnBelowSomebodyElse) {
    watch("one");
    const Stranger stranger(shown);
    windows.reset();
    EXPECT_EQ(shown.ask(), answer + 1);
    EXPECT_THAT(heard, ElementsAre());
}

TEST_F(NativeWindowsTest, AWindowMayEndBeforeItsProcedure) {
    watch("one");
    shown.end();
    EXPECT_EQ(support::errorOf([&] { (void)windows->style(shown.handle()); }).number(),
              HRESULT_FROM_WIN32(ERROR_INVALID_WINDOW_HANDLE));
    windows.reset();
}

TEST_F(NativeWindowsTest, AWindowMayEndInItsProcedure) {
    const auto previous = std::make_shared<window::ProcedureAddress>();
    *previous = windows->install(shown.handle(), [&, previous](host::WindowHandle handle, std::uint32_t number,
                                                               std::uint32_t wParam, std::int32_t lParam) {
        if (number == question) shown.end();
        return windows->call(*previous, handle, number, wParam, lParam);
    });
    EXPECT_EQ(shown.ask(), 0);
}

TEST_F(NativeWindowsTest, MessagesHaveOneNumberInAllPrograms) {
    const std::uint32_t number = windows->registerMessage("HX_EDITORS");
    EXPECT_GE(number, 0xC000u);
    EXPECT_EQ(number, RegisterWindowMessageW(L"HX_EDITORS"));
}

TEST_F(NativeWindowsTest, PlacesAreThoseOfTheScreen) {
    const window::Rect place = windows->rect(shown.handle());
    EXPECT_EQ(place.left, 10);
    EXPECT_EQ(place.top, 20);
    EXPECT_EQ(place.right, 310);
    EXPECT_EQ(place.bottom, 220);
}

}  // namespace
}  // namespace hx::windows
