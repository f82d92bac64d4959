// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "automation/dispatch.h"
#include "forms/event.h"
#include "forms/font.h"
#include "forms/input.h"

namespace hx::forms {

class Form;

/// What every control has. A model: it holds state and raises events; a view subscribes to `changed`, shows the
/// state, and reports what the user does by the methods under "what a view reports". Lengths are twips, relative
/// to the container.
class Control : public automation::Dispatch {
  public:
    explicit Control(std::string name);

    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    /// The number within a control array, or none.
    [[nodiscard]] std::optional<std::int16_t> index() const noexcept { return index_; }
    void setIndex(std::int16_t index) { index_ = index; }
    [[nodiscard]] const std::string& tag() const noexcept { return tag_; }
    void setTag(const std::string& tag) { assign(tag_, tag, "Tag"); }

    /// The form that owns the control (set when it is added), and the control it lies in; none: the form itself.
    [[nodiscard]] Form* form() const noexcept { return form_; }
    void setForm(Form& form) noexcept { form_ = &form; }
    /// The form has ended; the control may live on in somebody's hands.
    void leaveForm() noexcept;
    [[nodiscard]] Control* container() const noexcept { return container_; }
    void setContainer(Control* container) noexcept { container_ = container; }

    [[nodiscard]] double left() const noexcept { return left_; }
    void setLeft(double twips) { assign(left_, twips, "Left"); }
    [[nodiscard]] double top() const noexcept { return top_; }
    void setTop(double twips) { assign(top_, twips, "Top"); }
    [[nodiscard]] double width() const noexcept { return width_; }
    void setWidth(double twips) { assign(width_, twips, "Width"); }
    [[nodiscard]] double height() const noexcept { return height_; }
    void setHeight(double twips) { assign(height_, twips, "Height"); }
    /// Moves and sizes in one step: one `changed` with "Bounds".
    void move(double left, double top, double width, double height);

    [[nodiscard]] bool visible() const noexcept { return visible_; }
    void setVisible(bool visible) { assign(visible_, visible, "Visible"); }
    [[nodiscard]] bool enabled() const noexcept { return enabled_; }
    void setEnabled(bool enabled) { assign(enabled_, enabled, "Enabled"); }
    [[nodiscard]] bool tabStop() const noexcept { return tabStop_; }
    void setTabStop(bool tabStop) { assign(tabStop_, tabStop, "TabStop"); }
    [[nodiscard]] std::int16_t tabIndex() const noexcept { return tabIndex_; }
    void setTabIndex(std::int16_t tabIndex) { assign(tabIndex_, tabIndex, "TabIndex"); }
    [[nodiscard]] const std::string& toolTipText() const noexcept { return toolTipText_; }
    void setToolTipText(const std::string& text) { assign(toolTipText_, text, "ToolTipText"); }
    [[nodiscard]] std::int32_t helpContextId() const noexcept { return helpContextId_; }
    void setHelpContextId(std::int32_t context) { assign(helpContextId_, context, "HelpContextID"); }
    /// Each change inside the font raises `changed` with "Font".
    [[nodiscard]] Font& font() noexcept { return font_; }

    /// Asks the view to give the control the keyboard (focusRequestEvent); without a view it has it at once.
    void setFocus();
    [[nodiscard]] bool hasFocus() const noexcept { return hasFocus_; }

    // --- what a view reports
    void focusChanged(bool focused);
    virtual void keyDown(KeyEvent& event) { keyDownEvent.raise(event); }
    virtual void keyUp(KeyEvent& event) { keyUpEvent.raise(event); }
    virtual void keyPress(KeyPress& event) { keyPressEvent.raise(event); }
    virtual void mouseDown(const MouseEvent& event) { mouseDownEvent.raise(event); }
    virtual void mouseMove(const MouseEvent& event) { mouseMoveEvent.raise(event); }
    virtual void mouseUp(const MouseEvent& event) { mouseUpEvent.raise(event); }
    virtual void doubleClick() { doubleClickEvent.raise(); }

    // --- events
    Event<std::string_view> changed;  ///< a property of this name has a new value
    Event<KeyEvent&> keyDownEvent, keyUpEvent;
    Event<KeyPress&> keyPressEvent;
    Event<const MouseEvent&> mouseDownEvent, mouseMoveEvent, mouseUpEvent;
    Event<> doubleClickEvent;
    Event<> focusRequestEvent;
    Event<bool> focusEvent;

    /// Rows common to all controls, for the tables of derived classes: Name, Index, Tag, Left, Top, Width, Height,
    /// Visible, Enabled, TabStop, TabIndex, ToolTipText, HelpContextID, Container, Font, SetFocus, KeyDown, KeyUp,
    /// KeyPress, MouseDown, MouseMove, MouseUp, DblClick.
    [[nodiscard]] static const automation::MemberTable& controlMembers();

  protected:
    /// Stores a new value and raises `changed`; the same value does nothing.
    template <class T>
    void assign(T& field, const T& value, std::string_view property) {
        if (field == value) return;
        field = value;
        changed.raise(property);
    }
    /// What the view has already: raises nothing.
    void boundsKnown(double left, double top, double width, double height) noexcept;

  private:
    std::string name_;
    std::optional<std::int16_t> index_;
    std::string tag_;
    std::string toolTipText_;
    Form* form_ = nullptr;
    Control* container_ = nullptr;
    double left_ = 0, top_ = 0, width_ = 0, height_ = 0;
    std::int32_t helpContextId_ = 0;
    std::int16_t tabIndex_ = 0;
    bool visible_ = true, enabled_ = true, tabStop_ = true, hasFocus_ = false;
    Font font_;
};

}  // namespace hx::forms
