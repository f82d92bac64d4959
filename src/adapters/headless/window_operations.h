// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>

#include "forms/script.h"
#include "host/system_services.h"

namespace hx::headless {

/// Windows by handle without a display: styles, parents, procedures and messages are kept as a window system keeps
/// them. A form's place is that of its model; maximised, it fills its parent.
class WindowOperations : public host::WindowOperations {
  public:
    static constexpr std::int32_t errInvalidWindow = automation::hresult(0x80070578);

    /// The window of a form, which is lent until remove(); and a window of a place on the screen.
    [[nodiscard]] forms::WindowHandle add(forms::Form& form);
    [[nodiscard]] forms::WindowHandle add(const host::window::Rect& rect);
    void remove(forms::WindowHandle handle);
    [[nodiscard]] bool exists(forms::WindowHandle handle) const noexcept { return windows_.contains(handle); }

    [[nodiscard]] forms::WindowHandle parent(forms::WindowHandle handle) const;  ///< 0 at the top level
    /// The parent that setParent was last asked for, as it was given.
    [[nodiscard]] forms::WindowHandle lastParentAsked() const noexcept { return lastParentAsked_; }
    /// A form that is visible and has not been taken out of its parent.
    [[nodiscard]] bool isShown(forms::WindowHandle handle) const;
    void show(forms::WindowHandle handle);
    void hide(forms::WindowHandle handle);
    /// The window with the keyboard; 0 for none.
    [[nodiscard]] forms::WindowHandle active() const noexcept { return active_; }
    /// Activates a window as the user's click (or another way) does: tells the one before and then this one by message.
    void activate(forms::WindowHandle handle, std::uint32_t state = host::window::clickActive);
    /// Runs the window's procedure.
    std::int32_t sendMessage(forms::WindowHandle handle, std::uint32_t message, std::uint32_t wParam,
                             std::int32_t lParam = 0);
    /// Class of the studio's objects around embedded windows: "MDIEdit", "Window"; any other name stands for "Frame".
    void setEmbeddingClass(std::string name) { embeddingClass_ = std::move(name); }

    [[nodiscard]] std::uint32_t style(forms::WindowHandle handle) const override;
    void setStyle(forms::WindowHandle handle, std::uint32_t style) override;
    void setParent(forms::WindowHandle handle, forms::WindowHandle parent) override;
    [[nodiscard]] std::uint32_t registerMessage(std::string_view name) override;
    [[nodiscard]] host::window::ProcedureAddress procedure(forms::WindowHandle handle) const override;
    [[nodiscard]] host::window::ProcedureAddress install(forms::WindowHandle handle,
                                                         host::window::Procedure procedure) override;
    void restore(forms::WindowHandle handle, host::window::ProcedureAddress address) override;
    std::int32_t call(host::window::ProcedureAddress address, forms::WindowHandle handle, std::uint32_t message,
                      std::uint32_t wParam, std::int32_t lParam) override;
    [[nodiscard]] host::window::Rect rect(forms::WindowHandle handle) const override;
    [[nodiscard]] automation::ObjectRef embeddingObject(forms::WindowHandle handle) const override;

    static constexpr double twipsPerPixel = 15;

  private:
    struct Window {
        forms::Form* form = nullptr;
        host::window::Rect rect;
        forms::WindowHandle parent = 0;
        std::uint32_t style = 0;
        host::window::ProcedureAddress procedure = 0;
        bool takenOut = false;
    };
    [[nodiscard]] forms::WindowHandle insert(Window window);
    [[nodiscard]] const Window& at(forms::WindowHandle handle) const;
    [[nodiscard]] Window& at(forms::WindowHandle handle);
    [[nodiscard]] bool isBelow(forms::WindowHandle handle, forms::WindowHandle above) const;
    std::int32_t defaultProcedure(forms::WindowHandle handle, std::uint32_t message, std::uint32_t wParam);

    std::map<forms::WindowHandle, Window> windows_;
    std::map<host::window::ProcedureAddress, host::window::Procedure> procedures_;
    std::map<std::string, std::uint32_t, automation::IgnoringCase> messages_;
    std::string embeddingClass_ = "MDIEdit";
    forms::WindowHandle lastHandle_ = 0, active_ = 0, lastParentAsked_ = 0;
    host::window::ProcedureAddress lastProcedure_ = 0;
};

}  // namespace hx::headless
