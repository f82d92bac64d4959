// SPDX-License-Identifier: MIT
#include "adapters/headless/window_operations.h"

#include <cmath>
#include <utility>

#include "adapters/headless/embedding_object.h"
#include "automation/error.h"

namespace hx::headless {

namespace window = host::window;

namespace {

constexpr forms::WindowHandle firstHandle = 0x10000;
constexpr forms::WindowHandle handleStep = 2;
constexpr window::ProcedureAddress defaultAddress = 1;
constexpr std::uint32_t firstMessage = 0xC000;  // where the numbers of registered messages begin

std::int32_t toPixels(double twips) {
    return static_cast<std::int32_t>(std::lround(twips / WindowOperations::twipsPerPixel));
}

[[noreturn]] void failInvalid(std::string_view what, std::int32_t number) {
    throw automation::Error(WindowOperations::errInvalidWindow,
                            "Invalid " + std::string(what) + " " + std::to_string(number));
}

}  // namespace

forms::WindowHandle WindowOperations::add(forms::Form& form) {
    Window made;
    made.form = &form;
    return insert(made);
}

forms::WindowHandle WindowOperations::add(const window::Rect& rect) {
    Window made;
    made.rect = rect;
    return insert(made);
}

forms::WindowHandle WindowOperations::insert(Window window) {
    lastHandle_ = lastHandle_ == 0 ? firstHandle : lastHandle_ + handleStep;
    window.procedure = defaultAddress;
    windows_.emplace(lastHandle_, window);
    return lastHandle_;
}

void WindowOperations::remove(forms::WindowHandle handle) {
    windows_.erase(handle);
    if (active_ == handle) active_ = 0;
    for (auto& [child, kept] : windows_) {
        if (kept.parent == handle) kept.parent = 0;
    }
}

const WindowOperations::Window& WindowOperations::at(forms::WindowHandle handle) const {
    const auto found = windows_.find(handle);
    if (found == windows_.end()) failInvalid("window handle", handle);
    return found->second;
}

WindowOperations::Window& WindowOperations::at(forms::WindowHandle handle) {
    return const_cast<Window&>(std::as_const(*this).at(handle));
}

forms::WindowHandle WindowOperations::parent(forms::WindowHandle handle) const { return at(handle).parent; }

bool WindowOperations::isShown(forms::WindowHandle handle) const {
    const Window& shown = at(handle);
    return !shown.takenOut && (shown.form == nullptr || shown.form->visible());
}

void WindowOperations::show(forms::WindowHandle handle) {
    Window& shown = at(handle);
    shown.takenOut = false;
    if (shown.form != nullptr) shown.form->setVisible(true);
}

void WindowOperations::hide(forms::WindowHandle handle) {
    Window& hidden = at(handle);
    if (hidden.form != nullptr) hidden.form->setVisible(false);
}

void WindowOperations::activate(forms::WindowHandle handle, std::uint32_t state) {
    if (handle == active_) return;
    if (handle != 0) (void)at(handle);
    const forms::WindowHandle before = std::exchange(active_, handle);
    if (exists(before)) sendMessage(before, window::activateMessage, window::inactive);
    if (exists(handle)) sendMessage(handle, window::activateMessage, state);
}

std::int32_t WindowOperations::sendMessage(forms::WindowHandle handle, std::uint32_t message, std::uint32_t wParam,
                                           std::int32_t lParam) {
    return call(at(handle).procedure, handle, message, wParam, lParam);
}

std::uint32_t WindowOperations::style(forms::WindowHandle handle) const { return at(handle).style; }

void WindowOperations::setStyle(forms::WindowHandle handle, std::uint32_t style) { at(handle).style = style; }

bool WindowOperations::isBelow(forms::WindowHandle handle, forms::WindowHandle above) const {
    while (handle != 0 && handle != above) handle = at(handle).parent;
    return handle == above;
}

void WindowOperations::setParent(forms::WindowHandle handle, forms::WindowHandle parent) {
    Window& moved = at(handle);
    lastParentAsked_ = parent;
    const bool toTopLevel = parent == 0 || parent == -1;
    if (!toTopLevel && isBelow(parent, handle)) failInvalid("parent window", parent);
    moved.parent = toTopLevel ? 0 : parent;
    moved.takenOut = toTopLevel;
}

std::uint32_t WindowOperations::registerMessage(std::string_view name) {
    const auto next = firstMessage + static_cast<std::uint32_t>(messages_.size());
    return messages_.try_emplace(std::string(name), next).first->second;
}

window::ProcedureAddress WindowOperations::procedure(forms::WindowHandle handle) const { return at(handle).procedure; }

window::ProcedureAddress WindowOperations::install(forms::WindowHandle handle, window::Procedure procedure) {
    Window& hooked = at(handle);
    lastProcedure_ = lastProcedure_ == 0 ? defaultAddress + 1 : lastProcedure_ + 1;
    procedures_.emplace(lastProcedure_, std::move(procedure));
    return std::exchange(hooked.procedure, lastProcedure_);
}

void WindowOperations::restore(forms::WindowHandle handle, window::ProcedureAddress address) {
    Window& hooked = at(handle);
    if (address != defaultAddress && !procedures_.contains(address)) failInvalid("window procedure", address);
    hooked.procedure = address;
}

std::int32_t WindowOperations::call(window::ProcedureAddress address, forms::WindowHandle handle, std::uint32_t message,
                                    std::uint32_t wParam, std::int32_t lParam) {
    (void)at(handle);
    if (address == defaultAddress) return defaultProcedure(handle, message, wParam);
    const auto found = procedures_.find(address);
    if (found == procedures_.end()) failInvalid("window procedure", address);
    const window::Procedure procedure = found->second;  // it may be replaced while it runs
    return procedure(handle, message, wParam, lParam);
}

std::int32_t WindowOperations::defaultProcedure(forms::WindowHandle handle, std::uint32_t message,
                                                std::uint32_t wParam) {
    forms::Form* const form = at(handle).form;
    if (message == window::activateMessage && form != nullptr) form->activated(wParam != window::inactive);
    return 0;
}

window::Rect WindowOperations::rect(forms::WindowHandle handle) const {
    const Window& placed = at(handle);
    if (placed.form == nullptr) return placed.rect;
    const forms::Form& form = *placed.form;
    const window::Rect outer = placed.parent == 0 ? window::Rect{} : rect(placed.parent);
    const bool fills = placed.parent != 0 && form.windowState() == forms::WindowState::maximised;
    if (fills) return outer;
    const std::int32_t left = outer.left + toPixels(form.left());
    const std::int32_t top = outer.top + toPixels(form.top());
    return {left, top, left + toPixels(form.width()), top + toPixels(form.height())};
}

automation::ObjectRef WindowOperations::embeddingObject(forms::WindowHandle handle) const {
    if (at(handle).parent == 0) return nullptr;
    auto& self = const_cast<WindowOperations&>(*this);  // the object works on the windows later
    if (embeddingClass_ == "Window") return std::make_shared<EmbeddingWindow>(self, handle);
    if (embeddingClass_ == "MDIEdit") return std::make_shared<EmbeddingEdit>(self, handle);
    return std::make_shared<EmbeddingOther>();
}

}  // namespace hx::headless
