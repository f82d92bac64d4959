// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <vector>
#include <windows.h>

#include "host/system_services.h"

namespace hx::windows {

/// Handles of windows are numbers of 32 bits, on 64-bit Windows too.
[[nodiscard]] inline HWND toHwnd(host::WindowHandle handle) noexcept {
    return reinterpret_cast<HWND>(static_cast<INT_PTR>(handle));
}
[[nodiscard]] inline host::WindowHandle toHandle(HWND window) noexcept {
    return static_cast<host::WindowHandle>(reinterpret_cast<INT_PTR>(window));
}

/// The window manager of Windows. Procedures that are installed run in the thread of their window, and what they throw
/// ends there. A procedure gets the halves of its parameters that the contract has; what it passes on to the one
/// before is passed on whole.
class NativeWindows : public host::WindowOperations {
  public:
    NativeWindows();
    NativeWindows(const NativeWindows&) = delete;
    NativeWindows& operator=(const NativeWindows&) = delete;
    /// Where somebody else has subclassed a window since, this program's code stays loaded to pass messages on.
    ~NativeWindows() override;

    [[nodiscard]] std::uint32_t style(host::WindowHandle handle) const override;
    void setStyle(host::WindowHandle handle, std::uint32_t style) override;
    void setParent(host::WindowHandle handle, host::WindowHandle parent) override;
    [[nodiscard]] std::uint32_t registerMessage(std::string_view name) override;
    [[nodiscard]] host::window::ProcedureAddress procedure(host::WindowHandle handle) const override;
    [[nodiscard]] host::window::ProcedureAddress install(host::WindowHandle handle,
                                                         host::window::Procedure procedure) override;
    /// A window that somebody else has subclassed since is left alone: the procedure is skipped from now on.
    void restore(host::WindowHandle handle, host::window::ProcedureAddress address) override;
    std::int32_t call(host::window::ProcedureAddress address, host::WindowHandle handle, std::uint32_t message,
                      std::uint32_t wParam, std::int32_t lParam) override;
    [[nodiscard]] host::window::Rect rect(host::WindowHandle handle) const override;
    [[nodiscard]] automation::ObjectRef embeddingObject(host::WindowHandle handle) const override;

  private:
    struct Hook;
    struct Message;

    static LRESULT CALLBACK receive(HWND window, UINT number, WPARAM wParam, LPARAM lParam) noexcept;
    LRESULT run(const Hook& hook, Message message);
    LRESULT passOn(WNDPROC other, HWND window, UINT number, std::uint32_t wParam, std::int32_t lParam);
    [[nodiscard]] Hook* hookOf(HWND window) const;
    void unhook(HWND window);
    [[nodiscard]] host::window::ProcedureAddress addressOf(WNDPROC other) const;

    std::map<HWND, std::unique_ptr<Hook>> hooks_;  ///< windows whose messages come to us first
    std::map<host::window::ProcedureAddress, std::shared_ptr<host::window::Procedure>> own_;
    mutable std::vector<WNDPROC> others_;  ///< by their addresses, from 1
    std::vector<Message*> underWay_;
    host::window::ProcedureAddress lastOwn_ = 0;
};

}  // namespace hx::windows
