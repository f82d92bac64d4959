// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>
#include <QWidget>
#include <string_view>

#include "adapters/qt/units.h"
#include "forms/control.h"

namespace hx::qt {

class SurroundingForm;

/// Shows one control in a widget and reports to it what the user does. Keys go to the model first; a swallowed key
/// goes no further. Lives on when the control ends before it: detach() cuts the ties, the widget is then only waiting
/// to be deleted.
class ControlView : public QObject {
  public:
    ControlView(forms::Control& control, SurroundingForm& form) : control_(&control), form_(form) {}

    [[nodiscard]] virtual QWidget& widget() = 0;
    /// The widget that the controls in `container` lie in; null when this view does not show that container.
    [[nodiscard]] virtual QWidget* areaOf(const forms::Control& container);
    /// Gives to the model what is being typed, as if the user had gone on to the next field.
    virtual void settle() {}
    /// Takes place and size from the model.
    virtual void layOut();
    /// The area that the control lies in has another size.
    virtual void containerResized() {}
    virtual void detach();

    /// Null after detach().
    [[nodiscard]] forms::Control* model() const noexcept { return control_; }
    /// Shows the whole state and follows its changes. Called once, when the view is complete.
    void start();
    void apply(std::string_view property) {
        if (control_ != nullptr) show(property);
    }

  protected:
    [[nodiscard]] SurroundingForm& form() const noexcept { return form_; }
    [[nodiscard]] const Units& units() const noexcept;
    /// Reports keys, mouse and focus of `part`, the mouse relative to the control's widget.
    void watch(QWidget& part);
    /// Tells the model what the mouse did, if there still is one: a button or the mouse's way, by the event's type.
    void tellMouse(QEvent::Type type, const forms::MouseEvent& mouse);
    /// The event of a part, as the model knows it.
    [[nodiscard]] forms::MouseEvent mouseReport(const QMouseEvent& event, const QWidget& part);
    /// Brings one property of the model into the widget.
    virtual void show(std::string_view property);
    /// The properties that the control has beyond those of all controls.
    [[nodiscard]] virtual std::vector<std::string_view> ownProperties() const { return {}; }
    /// What a screen reader calls the control.
    [[nodiscard]] virtual QString accessibleName() const;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] static bool hasKeyboard(const QWidget& part);

    forms::Control* control_;
    SurroundingForm& form_;
    forms::Subscription changed_, focusRequested_;
};

/// The model of a view as what it is; null after detach().
template <class C>
[[nodiscard]] C* modelOf(const ControlView& view) noexcept {
    return static_cast<C*>(view.model());
}

/// The name of a control, with its index in an array: "cmdChooseItem(2)".
[[nodiscard]] QString objectNameOf(const forms::Control& control);

}  // namespace hx::qt
