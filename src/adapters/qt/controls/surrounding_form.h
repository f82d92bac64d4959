// SPDX-License-Identifier: MIT
#pragma once

#include <QKeyEvent>
#include <QWidget>

#include "adapters/qt/view_services.h"
#include "forms/form.h"

namespace hx::qt {

class ControlView;

/// The window of a form, FormView, as its views see it: their rooms do not include the screen, which makes them.
class SurroundingForm {
  public:
    virtual ~SurroundingForm() = default;

    [[nodiscard]] virtual ViewServices& services() const noexcept = 0;
    [[nodiscard]] const Units& units() const noexcept { return services().units; }
    [[nodiscard]] PopUpPlace& popUps() const noexcept { return services().popUps; }
    /// Null once the form has ended.
    [[nodiscard]] virtual forms::Form* model() const noexcept = 0;
    /// The area inside the frame.
    [[nodiscard]] virtual QWidget& widget() noexcept = 0;
    /// The view of a control; null when it has none.
    [[nodiscard]] virtual ControlView* viewOf(const forms::Control& control) const = 0;
    /// Whether the toolkit places the controls, not their Left, Top, Width and Height.
    [[nodiscard]] virtual bool laidOut() const noexcept = 0;
    /// Gives the keyboard to the first field that can be seen.
    virtual void startKeyboard() = 0;
    /// Gives to the models what is being typed.
    virtual void settle() = 0;
    /// Reports a key that went down or up in a control. True when the view shall do nothing more with it.
    virtual bool reportKey(QKeyEvent& event, forms::Control& control) = 0;
    /// The bottom edge that a control may reach to, within its area and covering no status line; in pixels of it.
    [[nodiscard]] virtual int freeBottom(const QWidget& area, int bottom) const = 0;
};

}  // namespace hx::qt
