// SPDX-License-Identifier: MIT
#include "automation/member_rows.h"
#include "forms/control.h"
#include "forms/form.h"

namespace hx::forms {

using automation::ObjectRef;
using automation::Variant;

namespace {

Variant indexOf(Control& control) { return control.index() ? Variant(*control.index()) : Variant(); }
ObjectRef fontOf(Control& control) { return control.sharePart(control.font()); }

ObjectRef containerOf(Control& control) {
    if (control.container() != nullptr) return control.container()->share();
    return control.form() != nullptr ? control.form()->share() : ObjectRef();
}

// The form sees a key first when it asks for that.
Form* previewer(const Control& control) {
    Form* form = control.form();
    return form != nullptr && form->keyPreview() ? form : nullptr;
}

bool pressKey(Control& control, std::int16_t code, std::int16_t shift) {
    KeyEvent event{code, shift};
    if (Form* form = previewer(control)) form->keyDown(event);
    if (!event.swallowed()) control.keyDown(event);
    return event.swallowed();
}

bool releaseKey(Control& control, std::int16_t code, std::int16_t shift) {
    KeyEvent event{code, shift};
    if (Form* form = previewer(control)) form->keyUp(event);
    if (!event.swallowed()) control.keyUp(event);
    return event.swallowed();
}

bool typeCharacter(Control& control, std::int32_t character) {
    KeyPress event{character};
    if (Form* form = previewer(control)) form->keyPress(event);
    if (!event.swallowed()) control.keyPress(event);
    return event.swallowed();
}

void pressMouse(Control& control, std::int16_t button, std::int16_t shift, double x, double y) {
    control.mouseDown({button, shift, x, y});
}
void moveMouse(Control& control, std::int16_t button, std::int16_t shift, double x, double y) {
    control.mouseMove({button, shift, x, y});
}
void releaseMouse(Control& control, std::int16_t button, std::int16_t shift, double x, double y) {
    control.mouseUp({button, shift, x, y});
}

// Controls that a click does more with have a Click of their own.
void clickLeft(Control& control) {
    if (!control.enabled()) return;
    pressMouse(control, button::left, shift::none, 0, 0);
    releaseMouse(control, button::left, shift::none, 0, 0);
}

}  // namespace

const automation::MemberTable& Control::controlMembers() {
    using automation::method;
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&Control::name>("Name", "The control's name on its form"),
        property<&indexOf>("Index", "The number within a control array, else empty"),
        property<&Control::tag, &Control::setTag>("Tag", "Text of the program's own; \"C\" and a number is a caption"),
        property<&Control::left, &Control::setLeft>("Left", "Left edge in the container, in twips"),
        property<&Control::top, &Control::setTop>("Top", "Upper edge in the container, in twips"),
        property<&Control::width, &Control::setWidth>("Width", "Width in twips"),
        property<&Control::height, &Control::setHeight>("Height", "Height in twips"),
        property<&Control::visible, &Control::setVisible>("Visible", "Whether it is shown"),
        property<&Control::enabled, &Control::setEnabled>("Enabled", "Whether the user can use it"),
        property<&Control::tabStop, &Control::setTabStop>("TabStop", "Whether the tabulator key reaches it"),
        property<&Control::tabIndex, &Control::setTabIndex>("TabIndex", "Its place in the order of the tabulator key"),
        property<&Control::toolTipText, &Control::setToolTipText>("ToolTipText", "Shown when the mouse rests on it"),
        property<&Control::helpContextId, &Control::setHelpContextId>("HelpContextID", "Its number in the online help"),
        property<&containerOf>("Container", "The control or form that it lies in"),
        property<&fontOf>("Font", "The font of its text"),
        property<&Control::hasFocus>("HasFocus", "Whether it has the keyboard"),
        method<&Control::setFocus>("SetFocus", "Gives it the keyboard"),
        method<&pressKey>("KeyDown", "A key goes down: code, shift; true when a handler swallows it"),
        method<&releaseKey>("KeyUp", "A key goes up: code, shift; true when a handler swallows it"),
        method<&typeCharacter>("KeyPress", "A character is typed: its code point; true when a handler swallows it"),
        method<&pressMouse>("MouseDown", "A mouse button goes down: button, shift, x, y"),
        method<&moveMouse>("MouseMove", "The mouse moves: button, shift, x, y"),
        method<&releaseMouse>("MouseUp", "A mouse button goes up: button, shift, x, y"),
        method<&clickLeft>("Click", "A click with the left button; nothing while it cannot be used"),
        method<&Control::doubleClick>("DblClick", "A double click"),
    };
    static constexpr automation::MemberTable table{"Control", rows};
    return table;
}

}  // namespace hx::forms
