// SPDX-License-Identifier: MIT
#include "adapters/windows/native_windows.h"

#include <algorithm>
#include <string>
#include <utility>

#include "adapters/windows/embedded_window.h"
#include "adapters/windows/system_failure.h"
#include "hosting/windows_text.h"

namespace hx::windows {

using host::window::ProcedureAddress;

/// A window whose messages come to us first. It is found by a property of the window.
struct NativeWindows::Hook {
    NativeWindows* owner;  ///< null once that has ended: messages are only passed on
    WNDPROC before;
    ProcedureAddress current;  ///< what runs: one of ours, or `before`
};

/// A message that is under way to one of ours, whole.
struct NativeWindows::Message {
    HWND window;
    UINT number;
    WPARAM wParam;
    LPARAM lParam;
    LRESULT result = 0;
    bool isPassedOn = false;
};

namespace {

// Addresses of others' procedures lie below those of ours.
constexpr ProcedureAddress ownAddresses = 1 << 20;

HWND requireWindow(host::WindowHandle handle) {
    const HWND window = toHwnd(handle);
    if (!IsWindow(window)) fail(ERROR_INVALID_WINDOW_HANDLE);
    return window;
}

// A window is told messages in the kind of text that its procedure takes, which must not change with the procedure.
WNDPROC procedureOf(HWND window) {
    const LONG_PTR found =
        IsWindowUnicode(window) ? GetWindowLongPtrW(window, GWLP_WNDPROC) : GetWindowLongPtrA(window, GWLP_WNDPROC);
    require(found != 0);
    return reinterpret_cast<WNDPROC>(found);
}

void setProcedure(HWND window, WNDPROC procedure) {
    const auto value = reinterpret_cast<LONG_PTR>(procedure);
    const LONG_PTR before = IsWindowUnicode(window) ? SetWindowLongPtrW(window, GWLP_WNDPROC, value)
                                                    : SetWindowLongPtrA(window, GWLP_WNDPROC, value);
    require(before != 0);
}

LRESULT callProcedure(WNDPROC procedure, HWND window, UINT number, WPARAM wParam, LPARAM lParam) {
    return IsWindowUnicode(window) ? CallWindowProcW(procedure, window, number, wParam, lParam)
                                   : CallWindowProcA(procedure, window, number, wParam, lParam);
}

// Another library that was made from this source has windows of its own.
const std::wstring& propertyName() {
    static const std::wstring name = L"HXProcedure" + std::to_wstring(reinterpret_cast<std::uintptr_t>(&propertyName));
    return name;
}

void keepLoaded() {
    constexpr DWORD how = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN;
    HMODULE library = nullptr;
    GetModuleHandleExW(how, reinterpret_cast<LPCWSTR>(&keepLoaded), &library);
}

}  // namespace

NativeWindows::NativeWindows() = default;

NativeWindows::~NativeWindows() {
    for (auto& [window, hook] : hooks_) {
        if (procedureOf(window) == receive) {
            RemovePropW(window, propertyName().c_str());
            SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(hook->before));
            continue;
        }
        hook->owner = nullptr;
        (void)hook.release();  // it ends with the window
        keepLoaded();
    }
}

std::uint32_t NativeWindows::style(host::WindowHandle handle) const {
    return static_cast<std::uint32_t>(GetWindowLongA(requireWindow(handle), host::window::styleIndex));
}

void NativeWindows::setStyle(host::WindowHandle handle, std::uint32_t style) {
    SetWindowLongA(requireWindow(handle), host::window::styleIndex, static_cast<LONG>(style));
}

void NativeWindows::setParent(host::WindowHandle handle, host::WindowHandle parent) {
    const HWND window = requireWindow(handle);
    const bool isTakenOut = parent == 0 || parent == -1;
    if (isTakenOut) ShowWindow(window, SW_HIDE);
    require(SetParent(window, isTakenOut ? nullptr : requireWindow(parent)) != nullptr);
}

std::uint32_t NativeWindows::registerMessage(std::string_view name) {
    const UINT number = RegisterWindowMessageA(std::string(name).c_str());
    require(number != 0);
    return number;
}

NativeWindows::Hook* NativeWindows::hookOf(HWND window) const {
    const auto found = hooks_.find(window);
    return found == hooks_.end() ? nullptr : found->second.get();
}

ProcedureAddress NativeWindows::addressOf(WNDPROC other) const {
    auto known = std::ranges::find(others_, other);
    if (known == others_.end()) known = others_.insert(known, other);
    return static_cast<ProcedureAddress>(known - others_.begin()) + 1;
}

ProcedureAddress NativeWindows::procedure(host::WindowHandle handle) const {
    const HWND window = requireWindow(handle);
    const Hook* const hook = hookOf(window);
    return hook != nullptr ? hook->current : addressOf(procedureOf(window));
}

ProcedureAddress NativeWindows::install(host::WindowHandle handle, host::window::Procedure procedure) {
    const HWND window = requireWindow(handle);
    const ProcedureAddress address = ownAddresses + ++lastOwn_;
    own_.emplace(address, std::make_shared<host::window::Procedure>(std::move(procedure)));
    if (Hook* const hook = hookOf(window)) return std::exchange(hook->current, address);
    const WNDPROC before = procedureOf(window);
    auto made = std::make_unique<Hook>(Hook{this, before, address});
    require(SetPropW(window, propertyName().c_str(), made.get()));
    hooks_.emplace(window, std::move(made));
    setProcedure(window, receive);
    return addressOf(before);
}

void NativeWindows::restore(host::WindowHandle handle, ProcedureAddress address) {
    const HWND window = requireWindow(handle);
    Hook* const hook = hookOf(window);
    if (hook == nullptr) return;
    own_.erase(std::exchange(hook->current, address));
    if (!own_.contains(address) && procedureOf(window) == receive) {
        setProcedure(window, hook->before);
        unhook(window);
    }
}

void NativeWindows::unhook(HWND window) {
    RemovePropW(window, propertyName().c_str());
    hooks_.erase(window);
}

LRESULT NativeWindows::receive(HWND window, UINT number, WPARAM wParam, LPARAM lParam) noexcept {
    const auto* const hook = static_cast<const Hook*>(GetPropW(window, propertyName().c_str()));
    if (hook == nullptr) return DefWindowProcW(window, number, wParam, lParam);
    const WNDPROC before = hook->before;
    if (number == WM_NCDESTROY) {  // the last one
        if (hook->owner != nullptr) hook->owner->unhook(window);
        else delete hook;
    } else if (hook->owner != nullptr && hook->owner->own_.contains(hook->current)) {
        return hook->owner->run(*hook, {window, number, wParam, lParam});
    }
    return callProcedure(before, window, number, wParam, lParam);
}

LRESULT NativeWindows::run(const Hook& hook, Message message) {
    const std::shared_ptr<host::window::Procedure> procedure = own_.at(hook.current);  // it may be taken away meanwhile
    const WNDPROC before = hook.before;
    underWay_.push_back(&message);
    std::int32_t result = 0;
    bool isDone = true;
    try {
        result = (*procedure)(toHandle(message.window), message.number, static_cast<std::uint32_t>(message.wParam),
                              static_cast<std::int32_t>(message.lParam));
    } catch (...) {
        isDone = message.isPassedOn;
    }
    underWay_.pop_back();
    if (!IsWindow(message.window)) return 0;  // it has ended meanwhile
    if (!isDone) return callProcedure(before, message.window, message.number, message.wParam, message.lParam);
    const bool isPassedOn = message.isPassedOn && static_cast<std::int32_t>(message.result) == result;
    return isPassedOn ? message.result : result;
}

LRESULT NativeWindows::passOn(WNDPROC other, HWND window, UINT number, std::uint32_t wParam, std::int32_t lParam) {
    Message* const message = underWay_.empty() ? nullptr : underWay_.back();
    const bool isSame = message != nullptr && message->window == window && message->number == number &&
                        static_cast<std::uint32_t>(message->wParam) == wParam &&
                        static_cast<std::int32_t>(message->lParam) == lParam;
    if (!isSame) return callProcedure(other, window, number, wParam, lParam);
    message->isPassedOn = true;
    message->result = callProcedure(other, window, number, message->wParam, message->lParam);
    return message->result;
}

std::int32_t NativeWindows::call(ProcedureAddress address, host::WindowHandle handle, std::uint32_t message,
                                 std::uint32_t wParam, std::int32_t lParam) {
    const HWND window = requireWindow(handle);
    if (const auto found = own_.find(address); found != own_.end()) {
        const std::shared_ptr<host::window::Procedure> procedure = found->second;
        return (*procedure)(handle, message, wParam, lParam);
    }
    if (address < 1 || static_cast<std::size_t>(address) > others_.size()) fail(ERROR_INVALID_PARAMETER);
    const WNDPROC other = others_[static_cast<std::size_t>(address) - 1];
    return static_cast<std::int32_t>(passOn(other, window, message, wParam, lParam));
}

host::window::Rect NativeWindows::rect(host::WindowHandle handle) const {
    RECT place{};
    require(GetWindowRect(requireWindow(handle), &place));
    return {place.left, place.top, place.right, place.bottom};
}

automation::ObjectRef NativeWindows::embeddingObject(host::WindowHandle handle) const {
    const HWND window = requireWindow(handle);
    if (GetAncestor(window, GA_PARENT) == GetDesktopWindow()) return nullptr;
    return std::make_shared<EmbeddedWindow>(window);
}

}  // namespace hx::windows
